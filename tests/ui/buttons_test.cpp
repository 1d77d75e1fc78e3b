// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "tests/support/widgets.h"
#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"
#include "ui/picture_button.h"

namespace parlexo::test {
namespace {

/// A dialog with an edit, an ordinary button, the default button and a disabled one.
struct SampleDialog {
  SampleDialog() {
    auto* column = new QVBoxLayout(&dialog);
    for (QWidget* widget : {static_cast<QWidget*>(edit), static_cast<QWidget*>(plain),
                            static_cast<QWidget*>(strong), static_cast<QWidget*>(off)}) {
      column->addWidget(widget);
    }
    strong->setDefault(true);
    off->setEnabled(false);
    showActive(dialog);
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
  enum Focus { Edit, Plain };
  const Cases<const char*, Focus, Qt::Key, Qt::KeyboardModifiers, int, int> cases = {
      {"Enter in an edit presses the default", Edit, Qt::Key_Return, Qt::NoModifier, 0, 1},
      {"so does the keypad's", Edit, Qt::Key_Enter, Qt::KeypadModifier, 0, 1},
      {"Ctrl+Enter does not", Edit, Qt::Key_Return, Qt::ControlModifier, 0, 0},
      {"the focus precedes the default", Plain, Qt::Key_Return, Qt::NoModifier, 1, 0},
      {"Space presses the focus", Plain, Qt::Key_Space, Qt::NoModifier, 1, 0},
      {"a mnemonic works from anywhere", Edit, Qt::Key_P, Qt::AltModifier, 1, 0},
      {"also inside a word", Plain, Qt::Key_E, Qt::AltModifier, 0, 1},
      {"a disabled button has none", Plain, Qt::Key_O, Qt::AltModifier, 0, 0},
  };
  for (const auto& [what, focus, key, modifiers, plain, strong] : cases) {
    SampleDialog sample;
    QWidget* widget = focus == Edit ? static_cast<QWidget*>(sample.edit) : sample.plain;
    widget->setFocus();
    QTest::keyClick(widget, key, modifiers);
    // A mnemonic presses with a short animation, which takes longer on a busy machine.
    QTest::qWait(150);
    QDeadlineTimer deadline(plain + strong > 0 ? 2000 : 0);
    while (sample.plainClicks.isEmpty() && sample.strongClicks.isEmpty() && !deadline.hasExpired())
      QTest::qWait(10);
    EXPECT_EQ(sample.plainClicks.count(), plain) << what;
    EXPECT_EQ(sample.strongClicks.count(), strong) << what;
    EXPECT_TRUE(sample.offClicks.isEmpty()) << what;
    EXPECT_TRUE(sample.dialog.isVisible()) << what;
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

TEST(PictureButton, hiddenOrDisabledDefaultIsNotPressed) {
  SampleDialog sample;
  sample.edit->setFocus();
  sample.strong->setEnabled(false);
  QTest::keyClick(sample.edit, Qt::Key_Return);
  sample.strong->setEnabled(true);
  sample.strong->hide();
  QTest::keyClick(sample.edit, Qt::Key_Return);
  EXPECT_EQ(sample.strongClicks.count(), 0);
}

TEST(GradientDialog, opensLargeEnoughForItsTexts) {
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

TEST(ButtonAccessibility, exposesNameRoleAndAction) {
  PictureButton button(u"Fish && &Chips"_s);
  HyperlinkLabel link(u"About"_s);
  const Cases<QAbstractButton*, QAccessible::Role, QString, QString> cases = {
      {&button, QAccessible::Button, u"Fish & Chips"_s, u"Alt+C"_s},
      {&link, QAccessible::Link, u"About"_s, {}},
  };
  for (const auto& [widget, role, name, key] : cases) {
    QSignalSpy clicks(widget, &QAbstractButton::clicked);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), role);
    EXPECT_EQ(seen->text(QAccessible::Name), name);
    EXPECT_EQ(seen->text(QAccessible::Accelerator), key);
    const QString press = QAccessibleActionInterface::pressAction();
    EXPECT_EQ(seen->actionInterface()->keyBindingsForAction(press).join(u','), key);
    seen->actionInterface()->doAction(press);
    EXPECT_EQ(clicks.count(), 1);
  }
}

TEST(HyperlinkLabel, onlyWebAddressesReachTheBrowser) {
  const std::pair<const char*, std::size_t> cases[] = {
      {"https://www.parlexo.example/signup.php", 2},
      {"http://127.0.0.1:8080/", 2},
      {"HTTPS://www.parlexo.example", 2},
      {"", 0},
      {"file:///etc/passwd", 0},
      {"https:///nohost", 0},
      {"mailto:someone@parlexo.example", 0},
  };
  for (const auto& [address, openedPages] : cases) {
    std::vector<QUrl> opened;
    HyperlinkLabel link(u"link"_s, QUrl(QString::fromLatin1(address)));
    link.setOpener([&](const QUrl& page) {
      opened.push_back(page);
      return true;
    });
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Return);
    EXPECT_EQ(opened.size(), openedPages) << address;
  }
}

}  // namespace
}  // namespace parlexo::test
