// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/record_table.h"

#include <array>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include "base/settings.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/widgets.h"
#include "ui/export_button.h"
#include "ui/sorted_rows.h"

namespace parlexo::test {
namespace {

/// A list that can be reset as a whole.
struct Sheet final : QAbstractTableModel {
  using Rows = std::vector<std::array<const char*, 3>>;

  explicit Sheet(Rows rows) : rows_(std::move(rows)) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : int(rows_.size());
  }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : 3;
  }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override {
    const QString text = QString::fromUtf8(rows_[index.row()][index.column()]);
    if (role == Qt::DisplayRole) return text;
    // The last column sorts by its length.
    return role == recordSortRole && index.column() == 2 ? QVariant(double(text.size())) : QVariant();
  }
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation /*orientation*/, int role) const override {
    return role == Qt::DisplayRole ? QVariant(QStringList{"Key", "Value", "Note"}[section]) : QVariant();
  }

  void fill(Rows rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
  }
  void change(int row, const char* key) {
    rows_[row][0] = key;
    Q_EMIT dataChanged(index(row, 0), index(row, 0));
  }

 private:
  Rows rows_;
};

struct RecordTableTest : testing::Test {
  void open() {
    table_ = std::make_unique<RecordTable>(sheet_, form_, settings_);
    table_->resize(600, 200);
    table_->show();
    table_->activateWindow();
    (void)QTest::qWaitForWindowActive(table_.get());
  }
  void clickHeading(int column) {
    QHeaderView& header = *table_->header();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(column) + 10, header.height() / 2});
  }
  [[nodiscard]] QStringList keys() const { return columnCells(*table_, 0); }
  QTemporaryDir folder_;
  Settings settings_{folder_.path()};
  Sheet sheet_{
      {{"10", "x", "ccc"}, {"b", "=1", "a"}, {"nan", "y", ""}, {"-2.5", "Z", "bb"}, {"A", "y", "d"}}};
  RecordTable::Form form_{u"sheet"_s, u"Sheet"_s, {{60, {}}, {80, {}}, {100, {}}}};
  std::unique_ptr<RecordTable> table_;
};

TEST_F(RecordTableTest, headingSortsReversesAndRestoresTheOrder) {
  open();
  const auto given = keys();
  EXPECT_THAT(given, ElementsAre("10", "b", "nan", "-2.5", "A"));
  clickHeading(0);
  EXPECT_THAT(keys(), ElementsAre("-2.5", "10", "A", "b", "nan"));
  clickHeading(0);
  EXPECT_THAT(keys(), ElementsAre("nan", "b", "A", "10", "-2.5"));
  clickHeading(0);
  EXPECT_EQ(keys(), given);
  clickHeading(2);
  EXPECT_THAT(keys(), ElementsAre("nan", "b", "A", "-2.5", "10")) << "by the number behind the text";
  clickHeading(1);
  EXPECT_THAT(keys(), ElementsAre("b", "10", "nan", "A", "-2.5")) << "equal ones in the first order";
}

TEST_F(RecordTableTest, orderSurvivesAResetAndRowChanges) {
  open();
  clickHeading(0);
  sheet_.fill({{"3", "", ""}, {"1", "", ""}, {"2", "", ""}});
  EXPECT_THAT(keys(), ElementsAre("1", "2", "3"));
  sheet_.change(1, "9");
  EXPECT_THAT(keys(), ElementsAre("9", "2", "3"));
  clickHeading(0);
  EXPECT_THAT(keys(), ElementsAre("9", "3", "2"));
}

TEST_F(RecordTableTest, selectionCopyAndExportUseTheShownOrder) {
  open();
  clickHeading(0);
  table_->header()->moveSection(2, 0);
  table_->selectRecord(1);
  EXPECT_THAT(table_->selectedRecords(), ElementsAre(1));
  table_->selectionModel()->select(table_->model()->index(0, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  EXPECT_THAT(table_->selectedRecords(), ElementsAre(3, 1));
  sheet_.change(1, "b\r\nc\td");
  QTest::keySequence(table_.get(), QKeySequence::Copy);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"bb\t-2.5\tZ\na\tb  c d\t=1"_s);
  EXPECT_EQ(table_->toCsv().bytes(),
            "\xEF\xBB\xBFNote,Key,Value\r\nbb,-2.5,Z\r\nccc,10,x\r\nd,A,y\r\n"
            "a,\"b\r\nc\td\",'=1\r\n,nan,y\r\n");
  table_->clearSelection();
  table_->copySelected();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(u"bb"_s)) << "nothing selected, nothing copied";
}

TEST_F(RecordTableTest, userWidthsAreStoredAndOthersFollowTheFont) {
  open();
  const int usual = table_->columnWidth(0);
  EXPECT_GE(usual, 60);
  table_->resize(700, 200);
  EXPECT_EQ(settings_.columnWidths(u"sheet"_s), QList<int>()) << "the last column follows the window";
  table_->header()->resizeSection(1, 133);
  open();
  EXPECT_EQ(table_->columnWidth(1), 133);
  form_.columns[0].widest = QString(40, u'W');
  open();
  EXPECT_GT(table_->columnWidth(0), usual);
  EXPECT_EQ(table_->columnWidth(1), 133);
}

TEST_F(RecordTableTest, exportWritesTheChosenFileOrReportsTheError) {
  open();
  RecordingNotifier notifier;
  ExportButton button(*table_, notifier);
  button.setSuggestedName(u"My list"_s);
  QString path;
  QString suggested;
  button.setPathAsker([&](QWidget*, const QString& name) {
    suggested = name;
    return path;
  });
  button.click();
  EXPECT_EQ(suggested, u"My list"_s);
  path = folder_.filePath(u"list.csv"_s);
  button.click();
  EXPECT_EQ(readBytes(path), table_->toCsv().bytes());
  EXPECT_TRUE(notifier.shown.empty());
  path = folder_.filePath(u"nowhere/list.csv"_s);
  button.click();
  ASSERT_EQ(notifier.shown.size(), 1U);
  EXPECT_TRUE(notifier.shown[0].text.contains(QDir::toNativeSeparators(path)));
  sheet_.fill({});
  EXPECT_FALSE(button.isEnabled());
}

}  // namespace
}  // namespace parlexo::test
