// How long the user waits for the contact selection dialog when the address book has 100,000 contacts.

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <benchmark/benchmark.h>

#include "addressbook/core/extra_selection.h"
#include "addressbook/core/selection_lists.h"
#include "addressbook/screens/check_list_view.h"
#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/addressbook/sample_book.h"

namespace parlexo {
namespace {

constexpr int contactTotal = 100000;
constexpr int memberTotal = 50000;
constexpr int cityTotal = 500;

/// 100,000 contacts who can receive SMS, and a group that every second of them belongs to. The names mix
/// words and letter cases, so that sorting has something to do.
class Town : public test::SampleBook {
 public:
  Town() {
    static const char* const words[] = {"ann", "Bob", "CID", "dan", "Eva", "fay", "Gus", "hal", "Ida", "Jon"};
    QStringList members;
    for (int number = 0; number < contactTotal; ++number) {
      const int shuffled = static_cast<int>(number * 48271LL % contactTotal);
      const QString name = QStringLiteral("%1 %2")
                               .arg(QLatin1String(words[shuffled % 10]))
                               .arg(shuffled, 6, 10, QLatin1Char('0'));
      addContact(name, QStringLiteral("+61%1").arg(400000000 + number), "Y", "N", {},
                 {QStringLiteral("City %1").arg(number % cityTotal), name, "", "", "", ""});
      if (number < memberTotal) members << name;
    }
    addGroup("Half the town", members);
  }
};

const Town& town() {
  static const Town built;
  return built;
}

ContactSelection everybody() {
  SelectionLists lists(town().book(), QStringLiteral("All"), {});
  lists.setGroupTicked(0, true);
  return lists.tickedContacts();
}

void showAndPaint(QWidget& window) {
  window.show();
  QCoreApplication::processEvents();
  benchmark::DoNotOptimize(window.grab());
}

/// From the press of the button to the painted dialog; the argument tells whether the group's 50,000 are
/// ticked from the start.
void openDialog(benchmark::State& state) {
  const ContactSelection initial = state.range(0) ? everybody() : ContactSelection();
  test::RecordingNotifier notifier;
  town();
  for (auto step : state) {
    CSelectContactsDlg dialog(town().book(), QStringLiteral("SMS"), initial, notifier);
    showAndPaint(dialog);
  }
}
BENCHMARK(openDialog)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// From the tick of the group to the repainted list.
void tickGroupOf50000(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), QStringLiteral("SMS"), {}, notifier);
  showAndPaint(dialog);
  QAbstractItemModel& groups = *dialog.findChild<CheckListView*>(QStringLiteral("groupList"))->model();
  bool isTicked = false;
  for (auto step : state) {
    isTicked = !isTicked;
    groups.setData(groups.index(0, 0), isTicked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    benchmark::DoNotOptimize(dialog.grab());
  }
}
BENCHMARK(tickGroupOf50000)->Unit(benchmark::kMillisecond);

/// The space bar with all rows selected, to the repainted list.
void tickAllSelectedRows(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), QStringLiteral("SMS"), {}, notifier);
  showAndPaint(dialog);
  auto& view = *dialog.findChild<CheckListView*>(QStringLiteral("contactList"));
  view.selectAll();
  for (auto step : state) {
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    QCoreApplication::sendEvent(&view, &space);
    benchmark::DoNotOptimize(dialog.grab());
  }
}
BENCHMARK(tickAllSelectedRows)->Unit(benchmark::kMillisecond);

/// The typed beginning of a name that nobody has: every name is looked at.
void searchForMissingName(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), QStringLiteral("SMS"), {}, notifier);
  auto& view = *dialog.findChild<CheckListView*>(QStringLiteral("contactList"));
  for (auto step : state) view.keyboardSearch(QStringLiteral("z"));
}
BENCHMARK(searchForMissingName)->Unit(benchmark::kMillisecond);

/// "Select" with 50,000 ticked contacts.
void collectTicked(benchmark::State& state) {
  SelectionLists lists(town().book(), QStringLiteral("SMS"), everybody());
  for (auto step : state) benchmark::DoNotOptimize(lists.tickedContacts());
}
BENCHMARK(collectTicked)->Unit(benchmark::kMillisecond);

/// What the attribute dialog gathers when it opens: one field with few values, one with 100,000.
void gatherExtraValues(benchmark::State& state) {
  town();
  for (auto step : state) benchmark::DoNotOptimize(distinctExtraValues(town().book()));
}
BENCHMARK(gatherExtraValues)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace parlexo
