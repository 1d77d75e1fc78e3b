// SPDX-License-Identifier: GPL-3.0-or-later
// Response times of the contact selection dialog with an address book of 100,000 contacts.

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <benchmark/benchmark.h>

#include "addressbook/core/extra_selection.h"
#include "addressbook/core/selection_lists.h"
#include "addressbook/screens/check_list_model.h"
#include "addressbook/screens/contact_list_model.h"
#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/recording_notifier.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int contactTotal = 100000;
constexpr int memberTotal = 50000;
constexpr int cityTotal = 500;

/// An address book of 100,000 contacts that can receive SMS, half of them members of one group. The names mix
/// words and letter cases and are not added in sorted order.
class LargeBook : public test::SampleBook {
 public:
  LargeBook() {
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
    addGroup("Half of all", members);
  }
};

const LargeBook& largeBook() {
  static const LargeBook book;
  return book;
}

ContactSelection groupMembers() {
  SelectionLists lists(largeBook().book(), SelectionMode::All, {});
  lists.setGroupTicked(0, true);
  return lists.tickedContacts();
}

void showAndPaint(QWidget& window) {
  window.show();
  QCoreApplication::processEvents();
  benchmark::DoNotOptimize(window.grab());
}

/// From opening the dialog until it is painted. With the argument 1, the group's 50,000 members are ticked
/// initially.
void openDialog(benchmark::State& state) {
  const ContactSelection initial = state.range(0) ? groupMembers() : ContactSelection();
  test::RecordingNotifier notifier;
  largeBook();
  for (auto step : state) {
    CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, initial, notifier);
    showAndPaint(dialog);
  }
}
BENCHMARK(openDialog)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// From ticking the group until the list is repainted.
void tickGroupOf50000(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, {}, notifier);
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

/// From pressing the space bar with all rows selected until the list is repainted.
void tickAllSelectedRows(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, {}, notifier);
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

/// Keyboard search for a prefix without matches, which compares every name.
void searchForMissingName(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, {}, notifier);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  for (auto step : state) view.keyboardSearch(u"z"_s);
}
BENCHMARK(searchForMissingName)->Unit(benchmark::kMillisecond);

/// Typed letter by letter: a name, a number, two words, a text without matches.
const char* const typedTexts[] = {"ann 0123", "+614000", "eva city 7", "zq"};

/// From a keystroke in the search field until the list is repainted. The argument selects the typed text.
void searchByKeystrokes(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, {}, notifier);
  showAndPaint(dialog);
  auto& view = *dialog.findChild<CheckListView*>(u"contactList"_s);
  auto& search = *dialog.findChild<QLineEdit*>(u"contactSearch"_s);
  const QString text = QString::fromLatin1(typedTexts[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % text.size() + 1;
    search.setText(text.first(typed));
    benchmark::DoNotOptimize(view.viewport()->grab());
  }
  state.SetLabel(text.toStdString());
}
BENCHMARK(searchByKeystrokes)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// From clearing a search without matches until the list of all contacts is repainted.
void clearSearch(benchmark::State& state) {
  test::RecordingNotifier notifier;
  CSelectContactsDlg dialog(largeBook().book(), SelectionMode::Sms, groupMembers(), notifier);
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

/// For comparison: a QSortFilterProxyModel with the same rows and the same kind of view. It searches only
/// names and numbers, and for the whole text instead of its words.
void searchWithProxyModel(benchmark::State& state) {
  SelectionLists lists(largeBook().book(), SelectionMode::Sms, {});
  ContactListModel model(lists, SelectionMode::Sms);
  QSortFilterProxyModel filter;
  filter.setSourceModel(&model);
  filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
  filter.setFilterKeyColumn(-1);
  QTreeView view;
  view.setUniformRowHeights(true);
  view.setModel(&filter);
  showAndPaint(view);
  const QString text = QString::fromLatin1(typedTexts[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % text.size() + 1;
    filter.setFilterFixedString(text.first(typed));
    benchmark::DoNotOptimize(view.viewport()->grab());
  }
  state.SetLabel(text.toStdString());
}
BENCHMARK(searchWithProxyModel)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// Preparing 100,000 contacts for the search, which the dialog does once.
void prepareSearch(benchmark::State& state) {
  SelectionLists lists(largeBook().book(), SelectionMode::Sms, {});
  for (auto step : state) {
    ContactListModel model(lists, SelectionMode::Sms);
    model.search(u"zq"_s);
  }
}
BENCHMARK(prepareSearch)->Unit(benchmark::kMillisecond);

/// The "Select" button with 50,000 ticked contacts.
void collectTicked(benchmark::State& state) {
  SelectionLists lists(largeBook().book(), SelectionMode::Sms, groupMembers());
  for (auto step : state) benchmark::DoNotOptimize(lists.tickedContacts());
}
BENCHMARK(collectTicked)->Unit(benchmark::kMillisecond);

/// Collecting the values for the attribute dialog: one field with few values, one with 100,000.
void collectExtraValues(benchmark::State& state) {
  largeBook();
  for (auto step : state) benchmark::DoNotOptimize(distinctExtraValues(largeBook().book()));
}
BENCHMARK(collectExtraValues)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace parlexo
