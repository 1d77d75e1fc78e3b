#include "messaging/core/status_file.h"

#include <vector>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamReader>

#include "base/message_texts.h"
#include "base/notifier.h"

namespace parlexo {
namespace {

StatusEntry readEntry(QXmlStreamReader& xml) {
  const QXmlStreamAttributes attributes = xml.attributes();
  StatusEntry entry;
  entry.date = attributes.value(QLatin1String("Date")).toString();
  entry.phone = attributes.value(QLatin1String("Phone")).toString();
  entry.type = attributes.value(QLatin1String("Type")).toString();
  entry.status = attributes.value(QLatin1String("Status")).toString();
  entry.receipt = xml.readElementText(QXmlStreamReader::IncludeChildElements);
  return entry;
}

// Reads to the very end even when enough elements were seen: a document with a fault behind them is
// rejected like any other.
std::vector<StatusEntry> readEntries(QXmlStreamReader& xml) {
  std::vector<StatusEntry> entries;
  int children = 0;
  xml.readNextStartElement();
  while (xml.readNextStartElement()) {
    const bool wanted = children < StatusFile::elementsRead && xml.name() == QLatin1String("Message");
    ++children;
    if (wanted)
      entries.push_back(readEntry(xml));
    else
      xml.skipCurrentElement();
  }
  while (!xml.atEnd()) xml.readNext();
  return entries;
}

QString xmlFault(const QXmlStreamReader& xml, const QString& path) {
  return QStringLiteral("The status file %1 cannot be read: %2 (line %3, column %4)")
      .arg(path, xml.errorString(), QString::number(xml.lineNumber()), QString::number(xml.columnNumber()));
}

void appendEntry(QByteArray& bytes, const StatusEntry& entry) {
  bytes += "<Message Date=\"" + entry.date.toUtf8() + "\" Type=\"" + entry.type.toUtf8() + "\" Phone=\"" +
           entry.phone.toUtf8() + "\" Status=\"" + entry.status.toUtf8() + "\">" + entry.receipt.toUtf8() +
           "</Message>\n";
}

}  // namespace

void StatusFile::load(StatusLog& log, Notifier& notifier) {
  log.clear();
  log.markSaved();
  damaged_ = false;
  if (!QFileInfo::exists(path_)) {
    notifier.warning(text(TextId::StatusFileMissing));
    return;
  }
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) {
    damaged_ = true;
    notifier.error(QStringLiteral("The status file %1 cannot be read: %2").arg(path_, file.errorString()));
    return;
  }
  QXmlStreamReader xml(&file);
  std::vector<StatusEntry> entries = readEntries(xml);
  if (xml.hasError()) {
    damaged_ = true;
    notifier.error(xmlFault(xml, path_));
    return;
  }
  for (StatusEntry& entry : entries) log.add(std::move(entry));
  log.markSaved();
}

bool StatusFile::save(StatusLog& log) {
  if (damaged_ && !keepDamagedFile()) return false;
  QSaveFile file(path_);
  if (!file.open(QIODevice::WriteOnly)) return false;
  file.write(serialise(log));
  if (!file.commit()) return false;
  log.markSaved();
  return true;
}

QByteArray StatusFile::serialise(const StatusLog& log) {
  QByteArray bytes = "<Status>\n";
  int visited = 0;
  for (const auto& [receipt, entry] : log.entries()) {
    appendEntry(bytes, entry);
    if (++visited == entriesWritten) break;
  }
  return bytes + "</Status>";
}

bool StatusFile::keepDamagedFile() {
  const QString keptPath = path_ + QStringLiteral(".bad");
  QFile::remove(keptPath);
  if (QFileInfo::exists(path_) && !QFile::rename(path_, keptPath)) return false;
  damaged_ = false;
  return true;
}

}  // namespace parlexo
