// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demo.h"

#include <array>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

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

struct EarlierMessage {
  const char* phone;
  const char* type;
  const char* status;
  int hoursAgo;
};

constexpr std::array earlierMessages = {
    EarlierMessage{"+447700900137", "SMS", "Delivered to handset", 3},
    EarlierMessage{"+447700900174", "SMS", "Sent to network", 3},
    EarlierMessage{"+447700900211", "SMS", "Delivered to handset", 26},
    EarlierMessage{"+442079460100", "Fax", "Delivered to handset", 50},
    EarlierMessage{"+447700900248", "MMS", "Queued at gateway", 75},
    EarlierMessage{"+447700900285", "WAP", "Delivered to handset", 98},
};

struct EarlierPayment {
  double amount;
  const char* description;
  int hoursAgo;
};

constexpr std::array earlierPayments = {
    EarlierPayment{105.00, "Credit card payment", 720}, EarlierPayment{-0.10, "WAP to 1 number", 98},
    EarlierPayment{-0.25, "MMS to 1 number", 75},       EarlierPayment{-0.15, "Fax to 1 number", 50},
    EarlierPayment{-0.05, "SMS to 1 number", 26},       EarlierPayment{-0.10, "SMS to 2 numbers", 3},
};

struct SampleTemplate {
  const char* name;
  const char* text;
};

constexpr std::array sampleTemplates = {
    SampleTemplate{"Appointment reminder",
                   "A friendly reminder of your appointment tomorrow. Reply YES to confirm."},
    SampleTemplate{"Roster changed",
                   "The roster for next week has changed. Please look at the notice board."},
};

StatusLog earlierLog() {
  const QDateTime now = QDateTime::currentDateTime();
  StatusLog log;
  int number = 1;
  for (const auto& message : earlierMessages) {
    const QString receipt = u"DEMO-%1"_s.arg(number++, 4, 10, QChar(u'0'));
    const QDateTime sent = now.addSecs(-3600LL * message.hoursAgo);
    log.add({QLatin1String(message.phone), receipt, QLatin1String(message.status),
             QLatin1String(message.type), QLocale::c().toString(sent, u"dd/MM/yyyy HH:mm:ss"_s)});
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
  // The second one belongs to the first and has no numbers of its own.
  options.accounts = {{user(), password(), 100.0, true, {}},
                      {u"crew@"_s + user(), password(), 20.0, false, {}}};
  simulator_ = std::make_unique<simulator::Simulator>(options);
  if (!simulator_->start()) return simulator_->errorText();
  rememberPayments();
  for (const QString& problem : {fillContacts(), fillTemplates(), fillStatusLog()}) {
    if (!problem.isEmpty()) return problem;
  }
  return {};
}

void Demo::rememberPayments() {
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
  for (const auto& sample : sampleTemplates) {
    if (!templates.save(QLatin1String(sample.name), {{}, QLatin1String(sample.text)}))
      return u"Can't write the template %1"_s.arg(QLatin1String(sample.name));
  }
  return {};
}

QString Demo::fillStatusLog() {
  StatusFile file(Settings(dataFolder_).statusFile());
  StatusLog log;
  if (QFileInfo::exists(file.path())) {
    SilentNotifier silent;  // the client reads the file again and tells what is wrong with it
    file.load(log, silent);
  } else {
    log = earlierLog();
    if (!file.save(log)) return u"Can't write %1"_s.arg(file.path());
  }
  for (const auto& [receipt, entry] : log.entries()) simulator_->rememberReceipt(user(), receipt);
  return {};
}

}  // namespace parlexo
