// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_send_flow.h"

#include <thread>

#include <QCoreApplication>
#include <QCryptographicHash>

#include "tests/messaging/gateway_rig.h"
#include "tests/messaging/memory_refusal.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

constexpr int limitOfFax = 2 * 1024 * 1024;
constexpr int limitOfMobile = 50 * 1024;

/// The texts and rules of one message type.
struct Page {
  MessageType type;
  const char* operation;
  int limit;
  bool usesSenderId;
  const char* noFile;
  const char* cannotOpen;
  const char* tooLarge;
  const char* noMemory;
  const char* unreached;
  const char* refused;
  const char* warning;
  const char* success;
};

const Page pages[] = {
    {MessageType::Fax, "sendFax", limitOfFax, true, "No fax file has been selected. Select a fax file.",
     "Error opening Fax file:", "Fax files must be 2MB or less",
     "Error sending fax file. Insufficient memory", "Error sending fax file.",
     "An error occured while sending the fax file. Error code: 12",
     "Warning - The server was unable to send your fax file to the following numbers\n+61491570199\n",
     "Fax message successfully delivered to the server."},
    {MessageType::Mms, "sendMms", limitOfMobile, true,
     "No MMS media file has been selected. Select a MMS media file.", "Error opening media file :",
     "Error media files must be 50Kb or less", "Error sending media file. Insufficient memory", unreachable,
     "An error occured while sending the media file. Error code: 12",
     "Warning - The server was unable to send your media file to the following numbers\n+61491570199\n",
     "Media message successfully delivered to the server."},
    {MessageType::Wap, "sendWap", limitOfMobile, false,
     "No WAP media file has been selected. Select a WAP media file.", "Error opening WAP file :",
     "WAP files must be 50Kb or less", "Error sending WAP file. Insufficient memory", unreachable,
     "An error occured while sending the WAP file. Error code: 12",
     "Warning - The server was unable to send your WAP file to the following numbers\n+61491570199\n",
     "WAP message successfully delivered to the server."},
};

void PrintTo(const Page& page, std::ostream* out) {
  *out << toWord(page.type).toStdString();
}

struct FileSending : testing::TestWithParam<Page>, GatewayRig {
  explicit FileSending(const simulator::Options& options = {}) : GatewayRig(options) {
    state.gateway.maxFileSize = limitOfFax;
    state.gateway.maxFileSizeMobile = limitOfMobile;
  }

  static QByteArray content(int size) {
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 + i / 251);
    return bytes;
  }
  QString write(const QString& name, const QByteArray& bytes) {
    return writeBytes(folder.filePath(name), bytes);
  }
  FileDraft draftFor(const QString& path, const QString& numbers = u"+61491570156"_s) {
    return {path, {}, u"somebody"_s, numbers, {}};
  }
  FileDraft goodDraft() { return draftFor(write(u"good.bin"_s, content(1000))); }
  SendOutcome send(const FileDraft& draft) { return FileSendFlow(services(), GetParam().type).send(draft); }
  std::string cannotOpen(const QString& path) {
    return GetParam().cannotOpen + QDir::toNativeSeparators(path).toStdString();
  }
};

TEST_P(FileSending, acceptedFileIsSentUnchangedAndLogged) {
  const QByteArray bytes = content(40'000);
  FileDraft draft =
      draftFor(write(QString::fromUtf8("Gr\u00FC\u00DFe \u4F60.jpg"), bytes), u"+61491570156,+60312345678"_s);
  draft.note = QString::fromUtf8("Caf\u00E9 & <b>\n\u20AC");
  state.senderId = u"+61491570999"_s;
  EXPECT_EQ(send(draft), SendOutcome::Delivered);
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", QString("64 ") + GetParam().success));
  QStringList expected{"scheduleMessageDisable", "setSmsSenderId", GetParam().operation};
  if (!GetParam().usesSenderId) expected.removeAt(1);
  EXPECT_EQ(operations(), expected);

  const simulator::AcceptedMessage message = simulator.messages().at(0);
  EXPECT_EQ(message.type, GetParam().type);
  EXPECT_EQ(message.fileName, QString::fromUtf8("Gr\u00FC\u00DFe ?.jpg"));
  EXPECT_EQ(message.fileSha256, QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
  EXPECT_EQ(message.text, GetParam().type == MessageType::Fax ? QString() : draft.note);
  EXPECT_EQ(message.senderId, GetParam().usesSenderId ? state.senderId : QString());
  ASSERT_THAT(log.entries(), SizeIs(2));
  const StatusEntry& entry = log.entries().at(message.receipts.at(0));
  EXPECT_EQ(entry.type, toWord(GetParam().type));
}

TEST_P(FileSending, resultsHaveTheMessagesOfTheType) {
  FileDraft draft = goodDraft();
  draft.numbersList = u"+61491570156,+61491570199"_s;
  EXPECT_EQ(send(draft), SendOutcome::PartlyFailed);
  setFault(FaultKind::Code, QString::fromLatin1(GetParam().operation), 12);
  EXPECT_EQ(send(draft), SendOutcome::NotSent);
  simulator.clearFaults();
  setFault(FaultKind::Close, QString::fromLatin1(GetParam().operation));
  EXPECT_EQ(send(draft), SendOutcome::OutcomeUnknown);
  EXPECT_THAT(notifier.popTexts(), ElementsAre(GetParam().warning, GetParam().refused, GetParam().unreached));
  EXPECT_EQ(operations().count(QString::fromLatin1(GetParam().operation)), 3);
  EXPECT_THAT(log.entries(), SizeIs(2));
}

TEST_P(FileSending, missingInputIsReportedInOrderBeforeAnyCall) {
  FileDraft draft;
  draft.note = QString(10'241, QChar(u'x'));
  state.balanceIsZero = true;
  const auto expectRefusal = [&](const std::string& line, SendOutcome outcome) {
    EXPECT_EQ(send(draft), outcome);
    EXPECT_THAT(notifier.popLines().join(u'\n').toStdString(), StartsWith(line));
  };
  const std::string stop = "16 ";
  expectRefusal(stop + GetParam().noFile, SendOutcome::FileAtFault);
  draft.path = folder.filePath(u"missing"_s);
  expectRefusal(stop + "The contacts list is blank. Select contacts to send message to.",
                SendOutcome::RecipientsAtFault);
  draft.displayList = u"Ann [+1]"_s;
  if (GetParam().type == MessageType::Mms)
    expectRefusal(stop + "Description must be 10Kb or less", SendOutcome::MessageAtFault);
  draft.note.chop(1);
  expectRefusal("64 Your account balance is zero.\r\n", SendOutcome::NotSent);
  state.balanceIsZero = false;
  expectRefusal(stop + cannotOpen(draft.path), SendOutcome::FileAtFault);
  draft.path = write(u"large"_s, content(GetParam().limit + 1));
  expectRefusal(stop + GetParam().tooLarge, SendOutcome::FileAtFault);
  EXPECT_THAT(operations(), IsEmpty());
}

TEST_P(FileSending, limitOfTheLocatorIsTheLargestLength) {
  EXPECT_EQ(send(draftFor(write(u"full"_s, content(GetParam().limit)))), SendOutcome::Delivered);
  EXPECT_EQ(simulator.messages().at(0).fileSize, GetParam().limit);
  state.gateway.maxFileSize = 0;
  state.gateway.maxFileSizeMobile = 0;
  EXPECT_EQ(send(draftFor(write(u"byte"_s, "x"))), SendOutcome::FileAtFault);
  EXPECT_EQ(send(draftFor(write(u"empty"_s, ""))), SendOutcome::NotSent);
  EXPECT_EQ(operations().back(), GetParam().operation) << "an empty file is left to the gateway";
}

TEST_P(FileSending, lackOfMemoryIsReportedAfterTheCallsBefore) {
  const FileDraft draft = draftFor(write(u"big"_s, content(limitOfMobile)));
  const auto outcome = [&] {
    const MemoryRefusal refusal(limitOfMobile);
    return send(draft);
  }();
  EXPECT_EQ(outcome, SendOutcome::FileAtFault);
  EXPECT_EQ(notifier.popLines(), QStringList(QString("16 ") + GetParam().noMemory));
  EXPECT_EQ(operations(), QStringList("scheduleMessageDisable"));
  EXPECT_EQ(send(draft), SendOutcome::Delivered);
}

INSTANTIATE_TEST_SUITE_P(, FileSending, testing::ValuesIn(pages),
                         [](const auto& page) { return toWord(page.param.type).toStdString(); });

/// The rules that all types share, checked for one of them over a slow connection.
struct FaxSending : FileSending {
  FaxSending() : FileSending(slowUpload()) {}

  static simulator::Options slowUpload() {
    simulator::Options options;
    options.uploadRate = 1'000'000;
    return options;
  }
};

TEST_P(FaxSending, progressShowsTheTransfer) {
  std::vector<std::int64_t> seen;
  std::atomic<bool> over = false;
  std::thread watcher([&] {
    while (!over) {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      if (!progress.transfers.empty()) seen.push_back(progress.transfers.front().done());
    }
  });
  const SendOutcome outcome = send(draftFor(write(u"long.tif"_s, content(700'000))));
  over = true;
  watcher.join();
  EXPECT_EQ(outcome, SendOutcome::Delivered);
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
  const auto isHalfway = [](std::int64_t done) { return done > 100'000 && done < 600'000; };
  EXPECT_GE(std::count_if(seen.begin(), seen.end(), isHalfway), 2);
  EXPECT_EQ(progress.transfers.front().done(), 700'000);
  EXPECT_EQ(progress.transfers.front().total(), 700'000);
}

TEST_P(FaxSending, cancelledUploadIsNotSent) {
  runner.cancel(2, std::chrono::milliseconds(300));
  EXPECT_EQ(send(draftFor(write(u"long.tif"_s, content(700'000)))), SendOutcome::NotSent);
  EXPECT_LT(progress.transfers.front().done(), 600'000);
  EXPECT_THAT(notifier.popTexts(), ElementsAre(GetParam().unreached));
  EXPECT_THAT(simulator.messages(), IsEmpty());
}

TEST_P(FaxSending, onlyReadableAndWritableFilesAreOpened) {
  const QString link = folder.filePath(u"dangling"_s);
  const QString missing = folder.filePath(u"missing"_s);
  // No user can write to a running program, not even root.
  QStringList paths{missing, folder.path(), u"/dev/zero"_s, QCoreApplication::applicationFilePath()};
  // Windows creates a shortcut file instead of a link.
  if (QFile::link(folder.filePath(u"nowhere"_s), link) && QFileInfo(link).isSymbolicLink()) paths << link;
  for (const QString& path : paths) {
    EXPECT_EQ(send(draftFor(path)), SendOutcome::FileAtFault);
    EXPECT_THAT(notifier.popTexts(), ElementsAre(cannotOpen(path)));
  }
  EXPECT_FALSE(QFile::exists(missing)) << "opening must not create it";
  EXPECT_THAT(operations(), IsEmpty());
}

TEST_P(FaxSending, changedFileIsNotSentButARemovedOneIs) {
  const FileDraft draft = goodDraft();
  for (const int size : {999, 1001}) {
    runner.onRun = [&] { QFile::resize(draft.path, size); };
    EXPECT_EQ(send(draft), SendOutcome::FileAtFault) << size;
    EXPECT_THAT(notifier.popTexts(), ElementsAre(cannotOpen(draft.path))) << size;
    QFile::resize(draft.path, 1000);
  }
  EXPECT_FALSE(operations().contains(GetParam().operation));
  runner.onRun = [&] { QFile::remove(draft.path); };
  EXPECT_EQ(send(draft), SendOutcome::Delivered);
  EXPECT_EQ(simulator.messages().at(0).fileSize, 1000);
}

INSTANTIATE_TEST_SUITE_P(, FaxSending, testing::Values(pages[0]),
                         [](const auto& page) { return toWord(page.param.type).toStdString(); });

}  // namespace
}  // namespace parlexo::test
