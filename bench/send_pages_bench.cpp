// SPDX-License-Identifier: GPL-3.0-or-later
// What the user waits for around a message to 10,000 recipients, over a real connection to a simulator: the
// selection, the send itself, and the status page with one entry for each recipient. The counter "blocked"
// is the longest time, in milliseconds, for which the windows neither painted nor listened.

#include <algorithm>
#include <cstddef>

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <QTreeView>
#include <benchmark/benchmark.h>

#include "messaging/screens/message_edit.h"
#include "messaging/screens/sms_dlg.h"
#include "messaging/screens/status_dlg.h"
#include "tests/messaging/gateway_rig.h"
#include "ui/picture_button.h"
#include "ui/waiting/progress_box.h"
#include "ui/waiting/thread_call_runner.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int recipientTotal = 10'000;

simulator::Options richAccount() {
  simulator::Options options;
  options.accounts.front().balance = 1e9;
  return options;
}

/// The longest time between two turns of the event loop since the watch was made.
class LoopWatch {
 public:
  LoopWatch() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { note(); });
    sinceTurn_.start();
    timer_.start(1);
  }

  [[nodiscard]] double longestMilliseconds() {
    note();
    return longest_;
  }

 private:
  void note() {
    longest_ = std::max(longest_, static_cast<double>(sinceTurn_.nsecsElapsed()) / 1e6);
    sinceTurn_.start();
  }

  QTimer timer_;
  QElapsedTimer sinceTurn_;
  double longest_ = 0;
};

/// The services of the program itself, with the progress box and the worker thread.
class Desk : public test::GatewayRig {
 public:
  Desk() : test::GatewayRig(richAccount()) {
    // No number ends in 99: the simulator would let it fail.
    for (int number = 0; number < recipientTotal; ++number) {
      names << u"Name %1"_s.arg(number, 5, 10, QChar(u'0'));
      book.addContact(names.back(), u"+61%1"_s.arg(400'000'000 + 100 * number), "Y");
    }
  }

  [[nodiscard]] MessagingServices services() {
    return {state, threaded, notifier, box, renewal(), book.book(), log, file, templates, settings};
  }

  QStringList names;
  ProgressBox box;
  ThreadCallRunner threads{box};
  Gateway threaded{state, threads};
};

/// Opens the selection with all contacts ticked and takes them over.
void selectEverybody(CQuillonSMSDlg& page, const QStringList& names) {
  QTimer::singleShot(0, &page, [&page] { page.findChild<QDialog*>(u"selectContactsDialog"_s)->accept(); });
  page.selectContacts(names);
}

void paint(QWidget& window) {
  window.show();
  QCoreApplication::processEvents();
  benchmark::DoNotOptimize(window.grab());
}

void select10000(benchmark::State& state) {
  Desk desk;
  CQuillonSMSDlg page(desk.services());
  paint(page);
  for (auto step : state) {
    selectEverybody(page, desk.names);
    benchmark::DoNotOptimize(page.grab());
  }
}
BENCHMARK(select10000)->Unit(benchmark::kMillisecond);

/// From the press of the button to the empty form.
void sendTo10000(benchmark::State& state) {
  Desk desk;
  CQuillonSMSDlg page(desk.services());
  paint(page);
  double blocked = 0;
  for (auto step : state) {
    state.PauseTiming();
    selectEverybody(page, desk.names);
    page.findChild<MessageEdit*>()->setPlainText(u"Hello"_s);
    state.ResumeTiming();
    LoopWatch watch;
    page.findChild<PictureButton*>(u"sendButton"_s)->click();
    benchmark::DoNotOptimize(page.grab());
    blocked = std::max(blocked, watch.longestMilliseconds());
  }
  if (desk.log.entries().size() < static_cast<std::size_t>(recipientTotal)) state.SkipWithError("not sent");
  state.counters["blocked"] = blocked;
}
BENCHMARK(sendTo10000)->Unit(benchmark::kMillisecond)->Iterations(5);

void addEntries(StatusLog& log) {
  for (int number = 0; number < recipientTotal; ++number)
    log.add({u"+61%1"_s.arg(400'000'000 + number), u"8C41-%1"_s.arg(number), u"Delivered to Gateway"_s,
             u"SMS"_s,
             u"21/11/2026 10:%1:%2"_s.arg(number / 60 % 60, 2, 10, QChar(u'0'))
                 .arg(number % 60, 2, 10, QChar(u'0'))});
}

void fillStatusPage(benchmark::State& state) {
  Desk desk;
  addEntries(desk.log);
  CStatusDlg page(desk.services());
  paint(page);
  for (auto step : state) {
    page.selectType(u"SMS"_s);
    benchmark::DoNotOptimize(page.grab());
  }
}
BENCHMARK(fillStatusPage)->Unit(benchmark::kMillisecond);

/// Clicks on the headings of date and number in turn.
void sortStatusPage(benchmark::State& state) {
  Desk desk;
  addEntries(desk.log);
  CStatusDlg page(desk.services());
  paint(page);
  auto& list = *page.findChild<QTreeView*>(u"statusList"_s);
  int column = 0;
  for (auto step : state) {
    list.sortByColumn(column, Qt::DescendingOrder);
    column = 2 - column;
    benchmark::DoNotOptimize(page.grab());
  }
}
BENCHMARK(sortStatusPage)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace parlexo
