// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demo.h"

#include <array>
#include <tuple>
#include <utility>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

#include "base/message_type.h"
#include "base/notifier.h"
#include "base/settings.h"
#include "contacts/samples/sample_contacts.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_log.h"
#include "messaging/core/template.h"
#include "simulator/simulator.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int sampleContactCount = 60;
constexpr int sampleGroupCount = 8;

// Phone number, type, status, age in hours.
using EarlierMessage = std::tuple<const char*, MessageType, const char*, int>;
constexpr std::array earlierMessages = {
    EarlierMessage{"+447700900137", MessageType::Sms, "Delivered to handset", 3},
    EarlierMessage{"+447700900174", MessageType::Sms, "Sent to network", 3},
    EarlierMessage{"+447700900211", MessageType::Sms, "Delivered to handset", 26},
    EarlierMessage{"+442079460100", MessageType::Fax, "Delivered to handset", 50},
    EarlierMessage{"+447700900248", MessageType::Mms, "Queued at gateway", 75},
    EarlierMessage{"+447700900285", MessageType::Wap, "Delivered to handset", 98},
};

// Amount, description, age in hours.
using EarlierPayment = std::tuple<double, const char*, int>;
constexpr std::array earlierPayments = {
    EarlierPayment{105.00, "Credit card payment", 720}, EarlierPayment{-0.10, "WAP to 1 number", 98},
    EarlierPayment{-0.25, "MMS to 1 number", 75},       EarlierPayment{-0.15, "Fax to 1 number", 50},
    EarlierPayment{-0.05, "SMS to 1 number", 26},       EarlierPayment{-0.10, "SMS to 2 numbers", 3},
};

// Name and text.
constexpr std::array sampleTemplates = {
    std::pair{"Appointment reminder",
              "A friendly reminder of your appointment tomorrow. Reply YES to confirm."},
    std::pair{"Roster changed", "The roster for next week has changed. Please look at the notice board."},
};

StatusLog sampleLog() {
  const QDateTime now = QDateTime::currentDateTime();
  StatusLog log;
  int number = 1;
  for (const auto& [phone, type, status, hoursAgo] : earlierMessages) {
    const QString receipt = u"DEMO-%1"_s.arg(number++, 4, 10, QChar(u'0'));
    const QDateTime sent = now.addSecs(-3600LL * hoursAgo);
    log.add({.phone = QLatin1String(phone),
             .receipt = receipt,
             .status = QLatin1String(status),
             .type = toWord(type),
             .date = QLocale::c().toString(sent, u"dd/MM/yyyy HH:mm:ss"_s)});
  }
  return log;
}

class SilentNotifier final : public Notifier {
 public:
  MessageResult show(const QString&, unsigned, int) override { return MessageResult::Ok; }
};

}  // namespace

Demo::Demo(const QString& dataFolder) : dataFolder_(dataFolder) {
  if (!dataFolder_.isEmpty()) return;
  temporary_ = std::make_unique<QTemporaryDir>(QDir::temp().filePath(u"parlexo-demo-XXXXXX"_s));
  dataFolder_ = temporary_->path();
}

Demo::~Demo() = default;

QString Demo::user() {
  return u"demo"_s;
}

QString Demo::password() {
  return u"demo1234"_s;
}

QString Demo::site() const {
  return simulator_->site();
}

QString Demo::start() {
  if (temporary_ && !temporary_->isValid()) return temporary_->errorString();
  simulator::Options options;
  // The second is a subaccount of the first and has no receiving numbers.
  options.accounts = {
      {.user = user(), .password = password(), .balance = 100.0, .maySetSenderId = true, .email = {}},
      {.user = u"crew@"_s + user(),
       .password = password(),
       .balance = 20.0,
       .maySetSenderId = false,
       .email = {}}};
  simulator_ = std::make_unique<simulator::Simulator>(options);
  if (!simulator_->start()) return simulator_->errorText();
  addPayments();
  for (const QString& problem : {fillContacts(), fillTemplates(), fillStatusLog()}) {
    if (!problem.isEmpty()) return problem;
  }
  return {};
}

void Demo::addPayments() {
  const QDateTime now = QDateTime::currentDateTime();
  for (const auto& [amount, description, hoursAgo] : earlierPayments)
    simulator_->rememberTransaction(user(), amount, now.addSecs(-3600LL * hoursAgo),
                                    QLatin1String(description));
}

QString Demo::fillContacts() const {
  const QString folder = Settings(dataFolder_).contactsFolder();
  if (QFileInfo::exists(folder)) return {};
  return writeSampleFolder(folder, sampleContactCount, sampleGroupCount);
}

QString Demo::fillTemplates() const {
  const QDir folder(Settings(dataFolder_).templatesFolder());
  if (folder.exists()) return {};
  makeFolderPath(folder.path());
  const TemplateFolder templates(folder.path());
  for (const auto& [name, message] : sampleTemplates) {
    if (!templates.save(QLatin1String(name), {.displayList = {}, .message = QLatin1String(message)}))
      return tr("Can't write the template %1").arg(QLatin1String(name));
  }
  return {};
}

QString Demo::fillStatusLog() {
  StatusFile file(Settings(dataFolder_).statusFile());
  StatusLog log;
  if (QFileInfo::exists(file.path())) {
    SilentNotifier silent;  // the client loads the file again and reports any error
    file.load(log, silent);
  } else {
    log = sampleLog();
    if (!file.save(log)) return tr("Can't write %1").arg(file.path());
  }
  for (const auto& [receipt, entry] : log.entries()) simulator_->rememberReceipt(user(), receipt);
  return {};
}

}  // namespace parlexo
