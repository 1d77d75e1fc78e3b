// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of the send and status pages that block the user: counting a text after a keystroke or paste,
// selecting 10,000 recipients and removing half of them, sorting 10,000 entries for the status page, and
// saving the status log, which happens on the interface thread after every send.

#include <vector>

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "contacts/contact_record.h"
#include "messaging/core/recipients.h"
#include "messaging/core/sms_text.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_order.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

void countText(benchmark::State& state, SmsCharset charset) {
  const QString text(state.range(0), u'~');
  for (auto _ : state) benchmark::DoNotOptimize(composeSms(text, charset));
}
BENCHMARK_CAPTURE(countText, standard, SmsCharset::Standard)->Arg(160)->Arg(760)->Arg(100'000);
BENCHMARK_CAPTURE(countText, unicode, SmsCharset::Unicode)->Arg(70)->Arg(335)->Arg(100'000);

void selectAndHalveRecipients(benchmark::State& state) {
  std::vector<ContactRecord> contacts(static_cast<std::size_t>(state.range(0)));
  std::vector<const ContactRecord*> selection;
  std::vector<int> everySecond;
  for (int i = 0; i < state.range(0); ++i) {
    ContactRecord& contact = contacts[static_cast<std::size_t>(i)];
    contact.name = u"Name %1"_s.arg(i);
    contact.phone = u"+%1"_s.arg(100'000 + i);
    selection.push_back(&contact);
    if (i % 2 == 1) everySecond.push_back(i);
  }
  for (auto _ : state) {
    Recipients recipients;
    benchmark::DoNotOptimize(recipients.select(selection, RecipientNumber::Phone));
    recipients.remove(everySecond);
    benchmark::DoNotOptimize(recipients.numbersList());
  }
}
BENCHMARK(selectAndHalveRecipients)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

void orderStatusEntries(benchmark::State& state) {
  std::vector<StatusEntry> entries;
  for (int i = 0; i < state.range(0); ++i) {
    StatusEntry entry;
    entry.date = u"01/01/2026 10:00:%1"_s.arg(i * 7 % 60, 2, 10, QChar(u'0'));
    entries.push_back(entry);
  }
  for (auto _ : state) {
    std::vector<StatusEntry> sorted = entries;
    sortByStatusDate(sorted);
    benchmark::DoNotOptimize(sorted);
  }
}
BENCHMARK(orderStatusEntries)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

void saveStatusLog(benchmark::State& state) {
  const QTemporaryDir folder;
  StatusFile file(folder.filePath(u"Status.xml"_s));
  StatusLog log;
  for (int i = 0; i < state.range(0); ++i)
    log.add({.phone = u"+61491570156"_s,
             .receipt = u"8C41-%1"_s.arg(i, 6, 10, QChar(u'0')),
             .status = u"Delivered to Gateway"_s,
             .type = u"SMS"_s,
             .date = u"01/01/2026 %1:10:00"_s.arg(i * 7 % 24)});
  for (auto _ : state) {
    log.setStatus(u"8C41-000000"_s, u"Status %1"_s.arg(log.revision()));
    if (!file.save(log)) state.SkipWithError("not saved");
  }
}
BENCHMARK(saveStatusLog)->Arg(100)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace parlexo
