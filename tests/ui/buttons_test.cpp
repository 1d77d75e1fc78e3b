// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

/// A dialog as pages build them: an edit, an ordinary button, the default button and one that is off.
struct SampleDialog {
  SampleDialog() {
    auto* column = new QVBoxLayout(&dialog);
    for (QWidget* widget : {static_cast<QWidget*>(edit), static_cast<QWidget*>(plain),
                            static_cast<QWidget*>(strong), static_cast<QWidget*>(off)}) {
      column->addWidget(widget);
    }
    strong->setDefault(true);
    off->setEnabled(false);
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  GradientDialog dialog;
  QLineEdit* edit = new QLineEdit;
  PictureButton* plain = new PictureButton(u"&Plain"_s);
  PictureButton* strong = new PictureButton(u"S&end >"_s);
  PictureButton* off = new PictureButton(u"&Off"_s);
  QSignalSpy plainClicks{plain, &QAbstractButton::clicked};
  QSignalSpy strongClicks{strong, &QAbstractButton::clicked};
  QSignalSpy offClicks{off, &QAbstractButton::clicked};
};

TEST(PictureButton, keysPressTheButtonTheyBelongTo) {
  struct Case {
    const char* what;
    int focus;  // 0 the edit, 1 the plain button
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int plain, strong, off;
  };
  const Case cases[] = {
      {"Enter in an edit presses the default", 0, Qt::Key_Return, Qt::NoModifier, 0, 1, 0},
      {"so does the keypad's", 0, Qt::Key_Enter, Qt::KeypadModifier, 0, 1, 0},
      {"Ctrl+Enter does not", 0, Qt::Key_Return, Qt::ControlModifier, 0, 0, 0},
      {"the focus goes before the default", 1, Qt::Key_Return, Qt::NoModifier, 1, 0, 0},
      {"Space presses the focus", 1, Qt::Key_Space, Qt::NoModifier, 1, 0, 0},
      {"a mnemonic works from anywhere", 0, Qt::Key_P, Qt::AltModifier, 1, 0, 0},
      {"also inside a word", 1, Qt::Key_E, Qt::AltModifier, 0, 1, 0},
      {"a button that is off has none", 1, Qt::Key_O, Qt::AltModifier, 0, 0, 0},
  };
  for (const Case& row : cases) {
    SampleDialog sample;
    QWidget* focus = row.focus == 0 ? static_cast<QWidget*>(sample.edit) : sample.plain;
    focus->setFocus();
    QTest::keyClick(focus, row.key, row.modifiers);
    // A mnemonic presses with a short animation, which a busy machine draws out.
    QTest::qWait(150);
    const int expected = row.plain + row.strong;
    (void)QTest::qWaitFor(
        [&] { return sample.plainClicks.count() + sample.strongClicks.count() >= expected; }, 2000);
    EXPECT_EQ(sample.plainClicks.count(), row.plain) << row.what;
    EXPECT_EQ(sample.strongClicks.count(), row.strong) << row.what;
    EXPECT_EQ(sample.offClicks.count(), row.off) << row.what;
    EXPECT_TRUE(sample.dialog.isVisible()) << row.what;
  }
}

TEST(PictureButton, heldEnterPressesOnce) {
  SampleDialog sample;
  sample.plain->setFocus();
  QKeyEvent first(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(sample.plain, &first);
  QCoreApplication::sendEvent(sample.plain, &repeated);
  EXPECT_EQ(sample.plainClicks.count(), 1);
  EXPECT_EQ(sample.strongClicks.count(), 0) << "the repeated key must not go on to the default button";
}

TEST(PictureButton, hiddenOrDisabledDefaultIsNotPressedUnseen) {
  SampleDialog sample;
  sample.edit->setFocus();
  sample.strong->setEnabled(false);
  QTest::keyClick(sample.edit, Qt::Key_Return);
  sample.strong->setEnabled(true);
  sample.strong->hide();
  QTest::keyClick(sample.edit, Qt::Key_Return);
  EXPECT_EQ(sample.strongClicks.count(), 0);
}

TEST(GradientDialog, opensAsHighAsItsTextsNeed) {
  GradientDialog dialog;
  dialog.setMinimumWidth(300);
  auto* words = new QLabel(QString(u"words "_s).repeated(9), &dialog);
  words->setWordWrap(true);
  auto* column = new QVBoxLayout(&dialog);
  column->addWidget(words);
  column->addSpacing(dialog.screen()->availableSize().height() * 3 / 4);
  dialog.open();
  QCoreApplication::processEvents();
  EXPECT_GE(words->height(), words->heightForWidth(words->width()));
}

TEST(ButtonAccessibility, assistiveToolsReadNameAndRoleAndCanPress) {
  PictureButton button(u"Fish && &Chips"_s);
  HyperlinkLabel link(u"About"_s);
  struct Case {
    QAbstractButton* button;
    QAccessible::Role role;
    QString name;
    QString key;
  };
  for (const Case& row : {Case{&button, QAccessible::Button, u"Fish & Chips"_s, u"Alt+C"_s},
                          Case{&link, QAccessible::Link, u"About"_s, {}}}) {
    QSignalSpy clicks(row.button, &QAbstractButton::clicked);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(row.button);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), row.role);
    EXPECT_EQ(seen->text(QAccessible::Name), row.name);
    EXPECT_EQ(seen->text(QAccessible::Accelerator), row.key);
    EXPECT_EQ(
        seen->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()).join(u','),
        row.key);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
  }
}

TEST(HyperlinkLabel, onlyWebAddressesReachTheBrowser) {
  struct Case {
    const char* address;
    bool opens;
  };
  const Case cases[] = {
      {"https://www.parlexo.example/signup.php", true},
      {"http://127.0.0.1:8080/", true},
      {"HTTPS://www.parlexo.example", true},
      {"", false},
      {"file:///etc/passwd", false},
      {"https:///nohost", false},
      {"mailto:someone@parlexo.example", false},
  };
  for (const Case& row : cases) {
    std::vector<QUrl> opened;
    HyperlinkLabel link(u"link"_s, QUrl(QString::fromLatin1(row.address)));
    link.setOpener([&](const QUrl& page) {
      opened.push_back(page);
      return true;
    });
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Return);
    EXPECT_EQ(opened.size(), row.opens ? 2U : 0U) << row.address;
  }
}

}  // namespace
}  // namespace parlexo
