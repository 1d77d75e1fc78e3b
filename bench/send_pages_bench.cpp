// SPDX-License-Identifier: GPL-3.0-or-later
// Response times for a message to 10,000 recipients, over a real connection to a simulator: the selection,
// the send and the status page with one entry per recipient. The counter "blocked" is the longest time in
// milliseconds during which the event loop did not run.

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

simulator::Options accountWithLargeBalance() {
  simulator::Options options;
  options.accounts.front().balance = 1e9;
  return options;
}

/// Measures the longest time between two iterations of the event loop since its construction.
class LoopWatch {
 public:
  LoopWatch() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { update(); });
    sinceIteration_.start();
    timer_.start(1);
  }

  [[nodiscard]] double longestMilliseconds() {
    update();
    return longest_;
  }

 private:
  void update() {
    longest_ = std::max(longest_, static_cast<double>(sinceIteration_.nsecsElapsed()) / 1e6);
    sinceIteration_.start();
  }

  QTimer timer_;
  QElapsedTimer sinceIteration_;
  double longest_ = 0;
};

/// The services with the client's progress box and worker thread.
class ClientServices : public test::GatewayRig {
 public:
  ClientServices() : test::GatewayRig(accountWithLargeBalance()) {
    // The simulator rejects numbers that end in 99.
    for (int number = 0; number < recipientTotal; ++number) {
      names << u"Name %1"_s.arg(number, 5, 10, QChar(u'0'));
      book.addContact(names.back(), u"+61%1"_s.arg(400'000'000 + 100 * number), "Y");
    }
  }

  [[nodiscard]] MessagingServices services() {
    return {.state = state,
            .gateway = threaded,
            .notifier = notifier,
            .progress = box,
            .renewal = renewal(),
            .addressBook = book.book(),
            .statusLog = log,
            .statusFile = file,
            .templates = templates,
            .settings = settings};
  }

  QStringList names;
  ProgressBox box;
  ThreadCallRunner threads{box};
  Gateway threaded{state, threads};
};

/// Opens the selection dialog with all contacts ticked and accepts it.
void selectAll(CQuillonSMSDlg& page, const QStringList& names) {
  QTimer::singleShot(0, &page, [&page] { page.findChild<QDialog*>(u"selectContactsDialog"_s)->accept(); });
  page.selectContacts(names);
}

void paint(QWidget& window) {
  window.show();
  QCoreApplication::processEvents();
  benchmark::DoNotOptimize(window.grab());
}

void select10000(benchmark::State& state) {
  ClientServices client;
  CQuillonSMSDlg page(client.services());
  paint(page);
  for (auto step : state) {
    selectAll(page, client.names);
    benchmark::DoNotOptimize(page.grab());
  }
}
BENCHMARK(select10000)->Unit(benchmark::kMillisecond);

/// From pressing Send until the form has been cleared.
void sendTo10000(benchmark::State& state) {
  ClientServices client;
  CQuillonSMSDlg page(client.services());
  paint(page);
  double blocked = 0;
  for (auto step : state) {
    state.PauseTiming();
    selectAll(page, client.names);
    page.findChild<MessageEdit*>()->setPlainText(u"Hello"_s);
    state.ResumeTiming();
    LoopWatch watch;
    page.findChild<PictureButton*>(u"sendButton"_s)->click();
    benchmark::DoNotOptimize(page.grab());
    blocked = std::max(blocked, watch.longestMilliseconds());
  }
  if (client.log.entries().size() < static_cast<std::size_t>(recipientTotal)) state.SkipWithError("not sent");
  state.counters["blocked"] = blocked;
}
BENCHMARK(sendTo10000)->Unit(benchmark::kMillisecond)->Iterations(5);

void addEntries(StatusLog& log) {
  for (int number = 0; number < recipientTotal; ++number)
    log.add({.phone = u"+61%1"_s.arg(400'000'000 + number),
             .receipt = u"8C41-%1"_s.arg(number),
             .status = u"Delivered to Gateway"_s,
             .type = u"SMS"_s,
             .date = u"21/11/2026 10:%1:%2"_s.arg(number / 60 % 60, 2, 10, QChar(u'0'))
                         .arg(number % 60, 2, 10, QChar(u'0'))});
}

void fillStatusPage(benchmark::State& state) {
  ClientServices client;
  addEntries(client.log);
  CStatusDlg page(client.services());
  paint(page);
  for (auto step : state) {
    page.selectType(MessageType::Sms);
    benchmark::DoNotOptimize(page.grab());
  }
}
BENCHMARK(fillStatusPage)->Unit(benchmark::kMillisecond);

/// Sorts by date and phone number alternately.
void sortStatusPage(benchmark::State& state) {
  ClientServices client;
  addEntries(client.log);
  CStatusDlg page(client.services());
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
