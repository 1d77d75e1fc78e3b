// SPDX-License-Identifier: GPL-3.0-or-later
// Response times of the contacts page with an address book of 100,000 contacts.

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPixmap>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTreeView>
#include <benchmark/benchmark.h>

#include "addressbook/screens/contact_rows_model.h"
#include "addressbook/screens/contacts_page.h"
#include "addressbook/screens/folder_tree.h"
#include "base/call_runner.h"
#include "base/settings.h"
#include "bench/bench_folder.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/recording_notifier.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int contactTotal = 100000;

/// An address book of 100,000 contacts under all letters; every second one is a member of one group.
class LargeBook : public test::SampleBook {
 public:
  LargeBook() {
    QStringList members;
    for (int number = 0; number < contactTotal; ++number) {
      const int shuffled = static_cast<int>(number * 48271LL % contactTotal);
      const QString name =
          u"%1erson %2"_s.arg(QChar(u'A' + shuffled % 26)).arg(shuffled, 6, 10, QLatin1Char('0'));
      addContact(name, u"+61%1"_s.arg(400000000 + number), "Y", "N", {},
                 {u"City %1"_s.arg(number % 500), "", "", "", "", ""});
      if (number % 2 == 0) members << name;
    }
    addGroup("Half of all", members);
    addGroup("My Personal Contacts");
  }
};

LargeBook& largeBook() {
  static LargeBook book;
  return book;
}

/// A visible contacts page with its services.
struct OpenPage {
  OpenPage() {
    page.resize(900, 500);
    page.show();
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(page.grab());
  }

  QTemporaryDir folder;
  test::RecordingNotifier notifier;
  NoProgress progress;
  Settings settings{folder.path()};
  DirectCallRunner runner;
  CContactsPage page{{.book = largeBook().book(),
                      .notifier = notifier,
                      .progress = progress,
                      .settings = settings,
                      .runner = runner}};
  FolderTree& tree = *page.findChild<FolderTree*>();
  QAbstractItemView& list = *page.findChild<QAbstractItemView*>(u"contactList"_s);
  QLineEdit& search = *page.findChild<QLineEdit*>(u"contactSearch"_s);
};

const ContactFolder personal{ContactFolder::Kind::Group, u"My Personal Contacts"_s};

/// From selecting a folder until its list is repainted.
void switchFolder(benchmark::State& state, const ContactFolder& folder) {
  OpenPage open;
  for (auto step : state) {
    open.tree.select(folder);
    benchmark::DoNotOptimize(open.list.viewport()->grab());
    state.PauseTiming();
    open.tree.select(personal);
    state.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(switchFolder, letterA, ContactFolder{ContactFolder::Kind::Letter, u"A"_s})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(switchFolder, groupOf50000, ContactFolder{ContactFolder::Kind::Group, u"Half of all"_s})
    ->Unit(benchmark::kMillisecond);

/// Typed letter by letter: a name, a number, two words, a text without matches.
const char* const typedTexts[] = {"person 0123", "+614000", "erson city 7", "zq"};

/// From a keystroke in the search field until the list is repainted. The argument selects the typed text.
void searchByKeystrokes(benchmark::State& state) {
  OpenPage open;
  const QString text = QString::fromLatin1(typedTexts[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % text.size() + 1;
    open.search.setText(text.first(typed));
    benchmark::DoNotOptimize(open.list.viewport()->grab());
  }
  state.SetLabel(text.toStdString());
}
BENCHMARK(searchByKeystrokes)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// From opening the page, which reads the whole book, until it is painted.
void openPage(benchmark::State& state) {
  largeBook();
  for (auto step : state) OpenPage open;
}
BENCHMARK(openPage)->Unit(benchmark::kMillisecond);

/// A refresh, as by F5 or after a change: reads and sorts the whole book.
void refreshPage(benchmark::State& state) {
  OpenPage open;
  for (auto step : state) open.page.refresh();
}
BENCHMARK(refreshPage)->Unit(benchmark::kMillisecond);

/// For comparison: a QSortFilterProxyModel between a model of all contacts and the same kind of view.
struct ProxiedView {
  ProxiedView() {
    ContactSelection::Contacts contacts;
    for (const auto& [name, contact] : largeBook().book().contacts()) contacts.push_back(&contact);
    model.setContacts(std::move(contacts));
    filter.setSourceModel(&model);
    filter.setSortCaseSensitivity(Qt::CaseInsensitive);
    filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter.sort(ContactRowsModel::NameColumn);
    view.setUniformRowHeights(true);
    view.setModel(&filter);
    view.resize(600, 400);
    view.show();
    QCoreApplication::processEvents();
  }

  ContactRowsModel model;
  QSortFilterProxyModel filter;
  QTreeView view;
};

void switchFolderWithProxyModel(benchmark::State& state) {
  ProxiedView proxied;
  char letter = 'A';
  for (auto step : state) {
    letter = letter == 'A' ? 'B' : 'A';
    proxied.filter.setFilterRegularExpression(u"^%1"_s.arg(QLatin1Char(letter)));
    benchmark::DoNotOptimize(proxied.view.viewport()->grab());
  }
}
BENCHMARK(switchFolderWithProxyModel)->Unit(benchmark::kMillisecond);

void searchWithProxyModel(benchmark::State& state) {
  ProxiedView proxied;
  proxied.filter.setFilterKeyColumn(-1);
  const QString text = QString::fromLatin1(typedTexts[state.range(0)]);
  qsizetype typed = 0;
  for (auto step : state) {
    typed = typed % text.size() + 1;
    proxied.filter.setFilterFixedString(text.first(typed));
    benchmark::DoNotOptimize(proxied.view.viewport()->grab());
  }
  state.SetLabel(text.toStdString());
}
BENCHMARK(searchWithProxyModel)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace parlexo
