// SPDX-License-Identifier: GPL-3.0-or-later
// How long the user waits for the contact selection dialog when the address book has 100,000 contacts.

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <benchmark/benchmark.h>

#include "addressbook/core/extra_selection.h"
#include "addressbook/core/selection_lists.h"
#include "addressbook/screens/check_list_view.h"
#include "addressbook/screens/contact_list_model.h"
#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/addressbook/sample_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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
      const QString name =
          u"%1 %2"_s.arg(QLatin1String(words[shuffled % 10])).arg(shuffled, 6, 10, QLatin1Char('0'));
      addContact(name, u"+61%1"_s.arg(400000000 + number), "Y", "N", {},
                 {u"City %1"_s.arg(number % cityTotal), name, "", "", "", ""});
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
  SelectionLists lists(town().book(), u"All"_s, {});
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
    CSelectContactsDlg dialog(town().book(), u"SMS"_s, initial, notifier);
    showAndPaint(dialog);
  }
}
BENCHMARK(openDialog)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// From the tick of the group to the repainted list.
void tickGroupOf50000(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), u"SMS"_s, {}, notifier);
  showAndPaint(dialog);
  QAbstractItemModel& groups = *dialog.findChild<CheckListView*>(u"groupList"_s)->model();
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
  CSelectContactsDlg dialog(town().book(), u"SMS"_s, {}, notifier);
  showAndPaint(dialog);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  view.selectAll();
  for (auto step : state) {
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s);
    QCoreApplication::sendEvent(&view, &space);
    benchmark::DoNotOptimize(dialog.grab());
  }
}
BENCHMARK(tickAllSelectedRows)->Unit(benchmark::kMillisecond);

/// The typed beginning of a name that nobody has: every name is looked at.
void searchForMissingName(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), u"SMS"_s, {}, notifier);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  for (auto step : state) view.keyboardSearch(u"z"_s);
}
BENCHMARK(searchForMissingName)->Unit(benchmark::kMillisecond);

/// What is typed letter by letter: a name, a number, two words, something that nobody has.
const char* const typings[] = {"ann 0123", "+614000", "eva city 7", "zq"};

/// Every keystroke in the search field, to the laid out and repainted list; the argument picks the typing.
void searchByKeystrokes(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), u"SMS"_s, {}, notifier);
  showAndPaint(dialog);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  auto& search = *dialog.findChild<QLineEdit*>(u"contactSearch"_s);
  const QString typing = QString::fromLatin1(typings[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % typing.size() + 1;
    search.setText(typing.first(typed));
    benchmark::DoNotOptimize(view.viewport()->grab());
  }
  state.SetLabel(typing.toStdString());
}
BENCHMARK(searchByKeystrokes)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// From nothing found back to all contacts in the repainted list.
void clearSearch(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(town().book(), u"SMS"_s, everybody(), notifier);
  showAndPaint(dialog);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  auto& search = *dialog.findChild<QLineEdit*>(u"contactSearch"_s);
  for (auto step : state) {
    search.setText(u"zq"_s);
    search.clear();
    benchmark::DoNotOptimize(view.viewport()->grab());
  }
}
BENCHMARK(clearSearch)->Unit(benchmark::kMillisecond);

/// The same keystrokes with Qt's own filter between the same rows and the same kind of view. It looks at
/// the names and numbers alone, for one text instead of words.
void searchWithProxyModel(benchmark::State& state) {
  SelectionLists lists(town().book(), u"SMS"_s, {});
  ContactListModel model(lists, u"SMS"_s);
  QSortFilterProxyModel filter;
  filter.setSourceModel(&model);
  filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
  filter.setFilterKeyColumn(-1);
  QTreeView view;
  view.setUniformRowHeights(true);
  view.setModel(&filter);
  showAndPaint(view);
  const QString typing = QString::fromLatin1(typings[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % typing.size() + 1;
    filter.setFilterFixedString(typing.first(typed));
    benchmark::DoNotOptimize(view.viewport()->grab());
  }
  state.SetLabel(typing.toStdString());
}
BENCHMARK(searchWithProxyModel)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// Making 100,000 contacts ready to be searched, which the dialog does once.
void prepareSearch(benchmark::State& state) {
  SelectionLists lists(town().book(), u"SMS"_s, {});
  for (auto step : state) {
    ContactListModel model(lists, u"SMS"_s);
    model.search(u"zq"_s);
  }
}
BENCHMARK(prepareSearch)->Unit(benchmark::kMillisecond);

/// "Select" with 50,000 ticked contacts.
void collectTicked(benchmark::State& state) {
  SelectionLists lists(town().book(), u"SMS"_s, everybody());
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
