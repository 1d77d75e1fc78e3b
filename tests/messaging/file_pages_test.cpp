// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QCryptographicHash>
#include <QDropEvent>
#include <QFileDialog>
#include <QImage>
#include <QMimeData>

#include "messaging/screens/file_details.h"
#include "messaging/screens/file_page.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/picture_preview.h"
#include "tests/messaging/page_rig.h"
#include "tests/support/file_bytes.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

template <class Page>
struct FilePages : PageRig<Page> {
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
  /// The hint below the path once the file has been checked.
  std::string factsFor(const QString& chosenFile) {
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

TYPED_TEST(FilePages, clearThemselvesOnlyAfterASuccessfulSend) {
  QSignalSpy sent(&this->page, &SendPage::messageSent);
  auto* note = this->page.template findChild<MessageEdit*>();
  const QString chosenFile = this->write("photo.jpg", "bytes");
  this->select({"Ann"});
  if (note) note->setText(u"Look"_s);
  this->path().setText(chosenFile);
  this->setFault(simulator::FaultKind::Code, u"any"_s, 12);
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

TYPED_TEST(FilePages, noteAndRecipientsStayVisibleAtEverySize) {
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

TEST_F(FaxPage, sendsToFaxNumbersAndShowsThePageCount) {
  select({"Ann", "Fax Only"});
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
  EXPECT_EQ(page.draft().displayList, "Ann [+61255501234],Fax Only [+61255505678]");
  EXPECT_EQ(page.draft().numbersList, "+61255501234,+61255505678");
  EXPECT_THAT(
      factsFor(write("one.pdf",
                     "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Count "
                     "1/Kids[3 0 R]>>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 "
                     "9]>>endobj\ntrailer<</Root 1 0 R>>\n")),
      EndsWith(" of at most 2 KB, 1 page"));
}

class WapPage : public FilePages<CQuillonWAPDlg> {};

TEST_F(WapPage, countsItsNoteAndHasNoSenderId) {
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
  EXPECT_FALSE(page.findChild<QWidget*>("senderIdButton"));
  select({"Ann"});
  path().setText(write("page.wml", "x"));
  press("sendButton");
  EXPECT_EQ(remaining.text(), "120");
}

struct MmsPage : FilePages<CQuillonMMSDlg> {
  static QByteArray makePicture(QSize size, const char* format,
                                QImage::Format pixels = QImage::Format_RGB32) {
    QImage image(size, pixels);
    image.fill(1);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
  }
};

TEST_F(MmsPage, aRejectionFocusesItsField) {
  press("sendButton");
  EXPECT_TRUE(path().hasFocus());
  path().setText(write("photo.jpg", "bytes"));
  press("sendButton");
  EXPECT_TRUE(find<QWidget>("selectContactsButton").hasFocus());
}

TEST_F(MmsPage, showsTheFactsOfTheCurrentFile) {
  EXPECT_EQ(facts(), "Choose a file of at most 1,000 bytes, or drop one here.");
  const QString chosenFile = write("photo.jpg", QByteArray(700, 'x'));
  EXPECT_THAT(factsFor(chosenFile), StartsWith("photo.jpg: 700 bytes of at most "));
  QFile::remove(chosenFile);
  press("sendButton");
  EXPECT_TRUE(QTest::qWaitFor([this] { return facts() == "There is no such file."; }));
}

TEST_F(MmsPage, staysNarrowWithLongFileNames) {
  const int width = page.minimumSizeHint().width();
  const std::string told = factsFor(write(QString(200, QChar(u'W')) + ".jpg", "x"));
  EXPECT_THAT(told, AllOf(StartsWith("WWW"), HasSubstr("W.jpg: 1 byte of")));
  EXPECT_EQ(page.minimumSizeHint().width(), width);
}

TEST_F(MmsPage, acceptsOneDroppedFileEverywhere) {
  const QUrl chosenFile = QUrl::fromLocalFile(write(QString::fromUtf8("Gr\u00FC\u00DFe \u4F60"), "x"));
  QWidget* const places[] = {&page, &path(), find<MessageEdit>("noteEdit").viewport(),
                             find<QAbstractItemView>("contactsBox").viewport()};
  EXPECT_FALSE(drop({QUrl(u"https://www.parlexo.example/a.jpg"_s)}, page));
  for (QWidget* place : places) {
    EXPECT_FALSE(drop({chosenFile, chosenFile}, *place));
    EXPECT_FALSE(drop({QUrl::fromLocalFile(folder.path())}, *place));
    EXPECT_EQ(path().text(), "");
    EXPECT_TRUE(drop({chosenFile}, *place));
    EXPECT_EQ(path().text(), chosenFile.toLocalFile());
    EXPECT_EQ(settings.fileFolder(), folder.path());
    path().clear();
  }
}

TEST_F(MmsPage, convertsAPastedFileUrlToItsPath) {
  const QString chosenFile = write(QString::fromUtf8("a b Gr\u00FC\u00DFe 50%.pdf"), "x");
  const QString address = QString::fromLatin1(QUrl::fromLocalFile(chosenFile).toEncoded());
  EXPECT_THAT(factsFor(u' ' + address + u'\n'), HasSubstr("50%.pdf: 1 byte of"));
  EXPECT_EQ(QDir::fromNativeSeparators(page.draft().path), chosenFile);
  EXPECT_EQ(factsFor("https://www.parlexo.example/a.pdf"), "There is no such file.");
  EXPECT_EQ(page.draft().path, "https://www.parlexo.example/a.pdf");
}

TEST_F(MmsPage, browsingStartsInTheLastFolder) {
  const QString chosen = write("README", "a name without a dot");
  const auto browse = [&](const QString& expectedFolder) {
    inDialog<QFileDialog>("browseButton", [&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory().absolutePath(), expectedFolder);
      dialog.setDirectory(folder.path());
      dialog.selectFile(chosen);
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
  };
  browse(QDir::homePath());
  EXPECT_EQ(path().text(), chosen);
  browse(folder.path());
}

TEST_F(MmsPage, previewShowsAPictureUntilThePathChanges) {
  auto& preview = find<PicturePreview>("picturePreview");
  EXPECT_NE(factsFor(write("tall.png", makePicture({40, 4000}, "png"))), "");
  ASSERT_FALSE(preview.pixmap().isNull());
  EXPECT_EQ(preview.pixmap().height(), preview.maxPictureSize().height());
  path().clear();
  EXPECT_TRUE(preview.pixmap().isNull());
  EXPECT_NE(factsFor(write("text.png", "no picture")), "");
  EXPECT_EQ(preview.text(), "No preview");
}

TEST_F(MmsPage, smallPicturesAreMadeFromImageFilesOnly) {
  const QByteArray png = makePicture({300, 200}, "png");
  const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  const Cases<const char*, QByteArray, QSize> samples = {
      {"PNG", png, {100, 66}},
      {"JPEG", makePicture({200, 300}, "jpeg"), {53, 80}},
      {"BMP that fits", makePicture({30, 20}, "bmp"), {30, 20}},
      {"sliver", makePicture({2000, 1}, "png"), {100, 1}},
      {"PNG cut off in its head", png.left(20), {0, 0}},
      {"PNG of few bytes and many pixels", makePicture({8000, 6000}, "png", QImage::Format_Mono), {0, 0}},
      {"drawing", svg, {0, 0}},
      {"nothing", "", {0, 0}},
  };
  for (const auto& [what, content, size] : samples) {
    const QImage picture = readThumbnail(write("picture.png", content), {100, 80});
    EXPECT_EQ(picture.size(), size) << what;
  }
  EXPECT_TRUE(readThumbnail(folder.path(), {100, 80}).isNull());
}

}  // namespace
}  // namespace parlexo::test
