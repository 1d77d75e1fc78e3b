#include "app/journey.h"

#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "app/journey_hands.h"

namespace parlexo {

namespace {

constexpr int pollInterval = 50;       // ms between two looks for the next window
constexpr int settleTime = 300;        // ms that a window gets to finish painting before its picture
constexpr qint64 longestWait = 60000;  // ms after which a window will not come any more

const QString loginWindow = QStringLiteral("Parlexo(TM) : Login");
const QString mainWindow = QStringLiteral("Parlexo(TM) : Messaging Client");
const QString selectionWindow = QStringLiteral("Parlexo(TM) : Contacts");
const QString notificationWindow = QStringLiteral("Parlexo(TM) : Notification");

void print(const QString& line) {
  std::printf("%s\n", qUtf8Printable(line));
  std::fflush(stdout);
}

}  // namespace

Journey::Journey(const QString& user, const QString& password, const QString& folder) : folder_(folder) {
  planLogin(user, password);
  planMessage();
  planStatus();
}

void Journey::start() {
  if (!QDir().mkpath(folder_)) return fail(QStringLiteral("the folder %1 can't be made").arg(folder_));
  waiting_.start();
  QTimer::singleShot(pollInterval, this, &Journey::waitForWindow);
}

void Journey::planLogin(const QString& user, const QString& password) {
  steps_.push_back({QStringLiteral("login"), QStringLiteral("Logs in as %1").arg(user), loginWindow,
                    [user, password](QWidget* window) {
                      return hands::typeInto(window, QStringLiteral("User Name:"), user) &&
                             hands::typeInto(window, QStringLiteral("Password:"), password);
                    }});
  steps_.push_back({QStringLiteral("login-filled"), QStringLiteral("Presses Login"), loginWindow,
                    [](QWidget* window) { return hands::press(window, QStringLiteral("Login")); }});
}

void Journey::planMessage() {
  steps_.push_back(
      {QStringLiteral("main-window"), QStringLiteral("Sees the balance; opens the contacts"), mainWindow,
       [](QWidget* window) { return hands::press(window, QStringLiteral("&Select Contacts...")); }});
  steps_.push_back(
      {QStringLiteral("contacts"), QStringLiteral("Ticks a group"), selectionWindow, [](QWidget* window) {
         return hands::tick(window, QStringLiteral("Groups:"), QStringLiteral("My Personal Contacts"));
       }});
  steps_.push_back({QStringLiteral("contacts-ticked"), QStringLiteral("Takes the ticked contacts"),
                    selectionWindow,
                    [](QWidget* window) { return hands::press(window, QStringLiteral("&Select")); }});
  steps_.push_back(
      {QStringLiteral("recipients"), QStringLiteral("Writes a message"), mainWindow, [](QWidget* window) {
         return hands::typeInto(window, QStringLiteral("Message"),
                                QStringLiteral("Dear crew, tomorrow's start moves to 7:30 at the north "
                                               "gate. Bring rain gear. Thanks!"));
       }});
  steps_.push_back({QStringLiteral("sms-page"), QStringLiteral("Presses Send"), mainWindow,
                    [](QWidget* window) { return hands::press(window, QStringLiteral("S&end >")); }});
  steps_.push_back({QStringLiteral("sent"),
                    QStringLiteral("Reads that the message was delivered to the server"), notificationWindow,
                    [](QWidget* window) { return hands::press(window, QStringLiteral("&OK")); }});
}

void Journey::planStatus() {
  steps_.push_back({QStringLiteral("main-window-after"), QStringLiteral("Turns to the Status tab"),
                    mainWindow,
                    [](QWidget* window) { return hands::showTab(window, QStringLiteral("Status")); }});
  steps_.push_back({QStringLiteral("status"), QStringLiteral("Asks for the status of every message"),
                    mainWindow, [](QWidget* window) {
                      return hands::selectAll(window, QStringLiteral("Status")) &&
                             hands::press(window, QStringLiteral("Get &Status"));
                    }});
  steps_.push_back({QStringLiteral("status-updated"), QStringLiteral("Sees how far each one is, and leaves"),
                    mainWindow, [](QWidget* window) {
                      print(QStringLiteral("   ") + hands::readList(window, QStringLiteral("Status"), 3));
                      return hands::press(window, QStringLiteral("&Exit"));
                    }});
}

void Journey::waitForWindow() {
  if (next_ == steps_.size()) return;
  const Step& step = steps_[next_];
  if (QWidget* window = hands::windowInFront(step.window)) {
    QTimer::singleShot(settleTime, window, [this, window] { takeStep(window); });
  } else if (waiting_.elapsed() > longestWait) {
    fail(QStringLiteral("the window \"%1\" did not come").arg(step.window));
  } else {
    QTimer::singleShot(pollInterval, this, &Journey::waitForWindow);
  }
}

void Journey::takeStep(QWidget* window) {
  const Step& step = steps_[next_];
  const QString file =
      QStringLiteral("%1/%2-%3.png").arg(folder_).arg(next_ + 1, 2, 10, QChar(u'0')).arg(step.picture);
  if (!window->grab().save(file)) return fail(QStringLiteral("the picture %1 can't be written").arg(file));
  print(QStringLiteral("%1. %2  [%3]").arg(next_ + 1, 2).arg(step.account, file));
  ++next_;
  waiting_.restart();
  // Queued before acting: what is pressed may open a window and not return before that has closed.
  QTimer::singleShot(pollInterval, this, &Journey::waitForWindow);
  if (!step.act(window)) fail(QStringLiteral("\"%1\" lacks what this step needs").arg(step.window));
}

void Journey::fail(const QString& why) {
  failed_ = true;
  next_ = steps_.size();
  print(QStringLiteral("The journey ended early: ") + why);
  QApplication::closeAllWindows();
  QCoreApplication::exit(1);
}

}  // namespace parlexo
