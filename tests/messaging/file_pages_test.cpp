// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <gmock/gmock.h>

#include "messaging/screens/file_details.h"
#include "messaging/screens/file_page.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/picture_preview.h"
#include "tests/messaging/page_rig.h"
#include "tests/support/file_bytes.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

template <class Page>
class FilePages : public PageRig<Page> {
 protected:
  FilePages() {
    this->state.gateway.maxFileSize = 2000;
    this->state.gateway.maxFileSizeMobile = 1000;
    this->book.addContact("Ann", "+61491570156", "Y", "Y", "+61255501234");
    this->book.addContact("Fax Only", "", "N", "N", "+61255505678");
    this->page.refresh();
  }

  QString write(const QString& name, const QByteArray& bytes) {
    return writeBytes(this->folder.filePath(name), bytes);
  }
  QLineEdit& path() { return this->template find<QLineEdit>("filePath"); }
  QString facts() { return this->template find<QLabel>("fileFacts").text(); }
  /// What the line below the path says once the file has been looked at.
  std::string factsOf(const QString& chosenFile) {
    path().setText(chosenFile);
    (void)QTest::qWaitFor([this] { return facts() != QLatin1String(" "); });
    return facts().toStdString();
  }
  bool drop(const QList<QUrl>& urls, QWidget& over) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&over, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&over, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "the file must stay where it is";
    return true;
  }
};

using AllPages = testing::Types<CQuillonFaxDlg, CQuillonMMSDlg, CQuillonWAPDlg>;
TYPED_TEST_SUITE(FilePages, AllPages);

TYPED_TEST(FilePages, clearThemselvesAfterASendThatSucceededAndOnlyThen) {
  QSignalSpy sent(&this->page, &SendPage::messageSent);
  auto* note = this->page.template findChild<MessageEdit*>();
  const QString chosenFile = this->write("photo.jpg", "bytes");
  this->select({"Ann"});
  if (note) note->setText(u"Look"_s);
  this->path().setText(chosenFile);
  this->misbehave(simulator::FaultKind::Code, u"any"_s, 12);
  this->press("sendButton");
  this->simulator.clearFaults();
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(this->page.draft().path, chosenFile);
  EXPECT_EQ(this->page.draft().note, note ? "Look" : "");
  EXPECT_NE(this->page.draft().displayList, "");
  this->press("sendButton");
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_EQ(sent.at(0).at(0).template value<MessageType>(), this->page.messageType());
  EXPECT_EQ(this->page.draft().path, "");
  EXPECT_EQ(this->page.draft().note, "");
  EXPECT_EQ(this->page.draft().displayList, "");
  EXPECT_EQ(this->simulator.messages().at(0).type, this->page.messageType());
}

TYPED_TEST(FilePages, aRefusalLeadsToItsField) {
  this->press("sendButton");
  EXPECT_TRUE(this->path().hasFocus());
  this->path().setText(this->write("photo.jpg", "bytes"));
  this->press("sendButton");
  EXPECT_TRUE(this->template find<PictureButton>("selectContactsButton").hasFocus());
}

TYPED_TEST(FilePages, tellAboutTheFileAndWhatHasBecomeOfIt) {
  const bool isFax = this->page.messageType() == MessageType::Fax;
  EXPECT_EQ(this->facts(), isFax ? "Choose a file of at most 2 KB, or drop one here."
                                 : "Choose a file of at most 1,000 bytes, or drop one here.");
  const QString chosenFile = this->write("photo.jpg", QByteArray(700, 'x'));
  EXPECT_THAT(this->factsOf(chosenFile), testing::StartsWith("photo.jpg: 700 bytes of at most "));
  QFile::remove(chosenFile);
  this->press("sendButton");
  EXPECT_TRUE(QTest::qWaitFor([this] { return this->facts() == "There is no such file."; }));
}

TYPED_TEST(FilePages, stayNarrowWhateverTheFileIsCalled) {
  const int width = this->page.minimumSizeHint().width();
  const std::string told = this->factsOf(this->write(QString(200, QChar(u'W')) + ".jpg", "x"));
  EXPECT_THAT(told, testing::AllOf(testing::StartsWith("WWW"), testing::HasSubstr("W.jpg: 1 byte of")));
  EXPECT_EQ(this->page.minimumSizeHint().width(), width);
}

TYPED_TEST(FilePages, takeOneDroppedFileEverywhereAndNothingElse) {
  const QUrl chosenFile = QUrl::fromLocalFile(this->write(QString::fromUtf8("Gr\u00FC\u00DFe \u4F60"), "x"));
  const auto* note = this->page.template findChild<MessageEdit*>();
  QWidget* const places[] = {&this->page, &this->path(), note ? note->viewport() : &this->page,
                             this->template find<QAbstractItemView>("contactsBox").viewport()};
  EXPECT_FALSE(this->drop({QUrl(u"https://www.parlexo.example/a.jpg"_s)}, this->page));
  for (QWidget* place : places) {
    EXPECT_FALSE(this->drop({chosenFile, chosenFile}, *place));
    EXPECT_FALSE(this->drop({QUrl::fromLocalFile(this->folder.path())}, *place));
    EXPECT_EQ(this->path().text(), "");
    EXPECT_TRUE(this->drop({chosenFile}, *place));
    EXPECT_EQ(this->path().text(), chosenFile.toLocalFile());
    EXPECT_EQ(this->settings.fileFolder(), this->folder.path());
    this->path().clear();
  }
}

TYPED_TEST(FilePages, takeThePastedAddressOfALocalFileForItsPath) {
  const QString chosenFile = this->write(QString::fromUtf8("a b Gr\u00FC\u00DFe 50%.pdf"), "x");
  const QString address = QString::fromLatin1(QUrl::fromLocalFile(chosenFile).toEncoded());
  EXPECT_THAT(this->factsOf(u' ' + address + u'\n'), testing::HasSubstr("50%.pdf: 1 byte of"));
  EXPECT_EQ(QDir::fromNativeSeparators(this->page.draft().path), chosenFile);
  EXPECT_EQ(this->factsOf("https://www.parlexo.example/a.pdf"), "There is no such file.");
  EXPECT_EQ(this->page.draft().path, "https://www.parlexo.example/a.pdf");
}

TYPED_TEST(FilePages, browsingBeginsInTheFolderOfTheLastChoice) {
  const QString chosen = this->write("README", "a name without a dot");
  const auto browse = [&](const QString& expectedFolder) {
    this->template inDialog<QFileDialog>("browseButton", [&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory().absolutePath(), expectedFolder);
      dialog.setDirectory(this->folder.path());
      dialog.selectFile(chosen);
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
  };
  browse(QDir::homePath());
  EXPECT_EQ(this->path().text(), chosen);
  browse(this->folder.path());
}

TYPED_TEST(FilePages, noteAndRecipientsHaveRoomAtEverySize) {
  const auto* note = this->page.template findChild<MessageEdit*>();
  const auto* remaining = this->page.template findChild<QLineEdit*>("charactersRemaining");
  const auto& box = this->template find<QAbstractItemView>("contactsBox");
  for (const QSize& size : {this->page.minimumSizeHint(), QSize(1000, 460)}) {
    this->page.resize(size);
    QCoreApplication::processEvents();
    EXPECT_GE(box.viewport()->height(), 3 * box.fontMetrics().lineSpacing());
    if (!note) continue;
    EXPECT_GE(note->viewport()->height(), 3 * note->fontMetrics().lineSpacing());
    EXPECT_FALSE(remaining && remaining->geometry().intersects(note->geometry()));
  }
}

class FaxPage : public FilePages<CQuillonFaxDlg> {};

TEST_F(FaxPage, sendsToFaxNumbersAndTellsThePages) {
  select({"Ann", "Fax Only"});
  EXPECT_THAT(notifier.takeTexts(), IsEmpty());
  EXPECT_EQ(page.draft().displayList, "Ann [+61255501234],Fax Only [+61255505678]");
  EXPECT_EQ(page.draft().numbersList, "+61255501234,+61255505678");
  EXPECT_THAT(
      factsOf(write("one.pdf",
                    "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Count "
                    "1/Kids[3 0 R]>>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 "
                    "9]>>endobj\ntrailer<</Root 1 0 R>>\n")),
      testing::EndsWith(" of at most 2 KB, 1 page"));
}

class WapPage : public FilePages<CQuillonWAPDlg> {};

TEST_F(WapPage, countsItsNoteAndSetsNoSenderId) {
  auto& note = find<MessageEdit>("noteEdit");
  const auto& remaining = find<QLineEdit>("charactersRemaining");
  EXPECT_EQ(remaining.text(), "120");
  QTest::keyClicks(&note, "Hi");
  EXPECT_EQ(remaining.text(), "118");
  const auto& lacking = find<QLabel>("unsendableCharacters");
  EXPECT_EQ(lacking.text(), "");
  note.setText(QString::fromUtf8("\u4F60"));
  EXPECT_EQ(lacking.text(), QString::fromUtf8("Will be sent as \"?\":  \u4F60"));
  QTest::keyClicks(&note, QString(130, QChar(u'x')));
  EXPECT_EQ(remaining.text(), "0");
  EXPECT_EQ(page.draft().note.size(), 120);
  EXPECT_FALSE(page.findChild<PictureButton*>("senderIdButton"));
  select({"Ann"});
  path().setText(write("page.wml", "x"));
  press("sendButton");
  EXPECT_EQ(remaining.text(), "120");
}

class MmsPage : public FilePages<CQuillonMMSDlg> {
 protected:
  static QByteArray pictureOf(QSize size, const char* format, QImage::Format pixels = QImage::Format_RGB32) {
    QImage image(size, pixels);
    image.fill(1);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
  }
};

TEST_F(MmsPage, previewShowsAPictureUntilThePathChanges) {
  auto& preview = find<PicturePreview>("picturePreview");
  EXPECT_NE(factsOf(write("tall.png", pictureOf({40, 4000}, "png"))), "");
  ASSERT_FALSE(preview.pixmap().isNull());
  EXPECT_EQ(preview.pixmap().height(), preview.maxPictureSize().height());
  path().clear();
  EXPECT_TRUE(preview.pixmap().isNull());
  EXPECT_NE(factsOf(write("text.png", "no picture")), "");
  EXPECT_EQ(preview.text(), "No preview");
}

TEST_F(MmsPage, smallPicturesAreMadeOfPicturesOnly) {
  const QByteArray png = pictureOf({300, 200}, "png");
  const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  const struct {
    const char* what;
    QByteArray content;
    QSize size;
  } samples[] = {
      {"PNG", png, {100, 66}},
      {"JPEG", pictureOf({200, 300}, "jpeg"), {53, 80}},
      {"BMP that fits", pictureOf({30, 20}, "bmp"), {30, 20}},
      {"sliver", pictureOf({2000, 1}, "png"), {100, 1}},
      {"PNG cut off in its head", png.left(20), {0, 0}},
      {"PNG of few bytes and many pixels", pictureOf({8000, 6000}, "png", QImage::Format_Mono), {0, 0}},
      {"drawing", svg, {0, 0}},
      {"nothing", "", {0, 0}},
  };
  for (const auto& sample : samples) {
    const QImage picture = readThumbnail(write("picture.png", sample.content), {100, 80});
    EXPECT_EQ(picture.size(), sample.size) << sample.what;
  }
  EXPECT_TRUE(readThumbnail(folder.path(), {100, 80}).isNull());
}

}  // namespace
}  // namespace parlexo
