#include "tour/tour_plan.h"

#include <cstdio>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "tour/tour_hands.h"

namespace parlexo {

namespace {

using Plan = std::vector<TourStep>;
using Act = std::function<bool(QWidget* window)>;

const QString loginWindow = QStringLiteral("Parlexo(TM) : Login");
const QString newsWindow = QStringLiteral("Parlexo(TM) : News");
const QString mainWindow = QStringLiteral("Parlexo(TM) : Messaging Client");
const QString selectionWindow = QStringLiteral("Parlexo(TM) : Contacts");
const QString detailsWindow = QStringLiteral("Parlexo(TM) : Contact Details");
const QString importWindow = QStringLiteral("Parlexo(TM) : Import Contacts");
const QString fileWindow = QStringLiteral("Import Contacts");
const QString notificationWindow = QStringLiteral("Parlexo(TM) : Notification");

Act press(const QString& button) {
  return [button](QWidget* window) { return hands::press(window, button); };
}

Act turnTo(const QString& tab) {
  return [tab](QWidget* window) { return hands::showTab(window, tab); };
}

Act typeInto(const QString& label, const QString& text) {
  return [label, text](QWidget* window) { return hands::typeInto(window, label, text); };
}

Act toggle(const QString& box) {
  return [box](QWidget* window) { return hands::toggle(window, box); };
}

Act tickOwnContacts() {
  return [](QWidget* window) {
    return hands::tick(window, QStringLiteral("Groups:"), QStringLiteral("My Personal Contacts"));
  };
}

Act reads(const QString& words) {
  return [words](QWidget* window) { return hands::reads(window, words); };
}

Act allOf(const std::vector<Act>& acts) {
  return [acts](QWidget* window) {
    bool succeeded = true;
    for (const Act& act : acts) succeeded = succeeded && act(window);
    return succeeded;
  };
}

void planLogin(Plan& plan, const QString& user, const QString& password) {
  plan.push_back({QStringLiteral("login"), QStringLiteral("Logs in as %1").arg(user), loginWindow,
                  allOf({typeInto(QStringLiteral("User Name:"), user),
                         typeInto(QStringLiteral("Password:"), password)})});
  plan.push_back({QStringLiteral("login-filled"), QStringLiteral("Presses Login"), loginWindow,
                  press(QStringLiteral("Login"))});
  plan.push_back(
      {QStringLiteral("news"), QStringLiteral("Reads the news"), newsWindow, press(QStringLiteral("&OK"))});
}

void planMessage(Plan& plan) {
  plan.push_back({QStringLiteral("main-window"), QStringLiteral("Sees the balance; opens the contacts"),
                  mainWindow, press(QStringLiteral("&Select Contacts..."))});
  plan.push_back(
      {QStringLiteral("contacts"), QStringLiteral("Ticks a group"), selectionWindow, tickOwnContacts()});
  plan.push_back({QStringLiteral("contacts-ticked"), QStringLiteral("Takes the ticked contacts"),
                  selectionWindow, press(QStringLiteral("&Select"))});
  plan.push_back(
      {QStringLiteral("recipients"), QStringLiteral("Writes a message"), mainWindow,
       typeInto(QStringLiteral("Message"),
                QStringLiteral("Dear crew, tomorrow's start moves to 7:30 at the north gate. Bring "
                               "rain gear. Thanks!"))});
  plan.push_back({QStringLiteral("sms-page"), QStringLiteral("Presses Send"), mainWindow,
                  press(QStringLiteral("S&end >"))});
  plan.push_back({QStringLiteral("sent"),
                  QStringLiteral("Reads that the message was delivered to the server"), notificationWindow,
                  allOf({reads(QStringLiteral("SMS message successfully delivered to the server.")),
                         press(QStringLiteral("&OK"))})});
}

void planStatus(Plan& plan) {
  const QString status = QStringLiteral("Status");
  plan.push_back({QStringLiteral("main-window-after"), QStringLiteral("Turns to the Status tab"), mainWindow,
                  turnTo(status)});
  plan.push_back({QStringLiteral("status"), QStringLiteral("Asks for the status of every message"),
                  mainWindow,
                  allOf({[status](QWidget* window) { return hands::selectAll(window, status); },
                         press(QStringLiteral("Get &Status"))})});
  plan.push_back({QStringLiteral("status-updated"), QStringLiteral("Sees how far each one is"), mainWindow,
                  [status](QWidget* window) {
                    std::printf("    %s\n", qUtf8Printable(hands::readList(window, status, 3)));
                    return hands::showTab(window, QStringLiteral("WAP"));
                  }});
}

bool makePicture(const QString& path) {
  if (QFile::exists(path)) return true;
  // A copy of what the program carries in itself is read-only at first, and such a file can't be sent.
  return QFile::copy(QStringLiteral(":/icons/parlexo-client-256.png"), path) &&
         QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool makeDocument(const QString& path) {
  QPdfWriter document(path);
  QPainter painter;
  if (!painter.begin(&document)) return false;
  const QRect page(QPoint(), document.pageLayout().paintRectPixels(document.resolution()).size());
  painter.drawText(page, Qt::AlignTop, QStringLiteral("Roster of week 31: see the notice board."));
  return painter.end();
}

struct FileToSend {
  QString tab;
  QString picture;
  QString fileLabel;
  QString file;
  bool (*make)(const QString& path);
  QString noteLabel;  ///< empty where the page has none
  QString note;
};

void planFilePage(Plan& plan, const FileToSend& page) {
  std::vector<Act> acts = {[page](QWidget*) { return page.make(page.file); },
                           typeInto(page.fileLabel, page.file)};
  if (!page.noteLabel.isEmpty()) acts.push_back(typeInto(page.noteLabel, page.note));
  plan.push_back({page.picture + QStringLiteral("-empty"),
                  QStringLiteral("Chooses a file to send as ") + page.tab, mainWindow, allOf(acts)});
  plan.push_back({page.picture + QStringLiteral("-filled"), QStringLiteral("Opens the contacts"), mainWindow,
                  press(QStringLiteral("&Select Contacts..."))});
  plan.push_back({page.picture + QStringLiteral("-contacts"), QStringLiteral("Ticks and takes a group"),
                  selectionWindow, allOf({tickOwnContacts(), press(QStringLiteral("&Select"))})});
}

void planFiles(Plan& plan, const QString& folder) {
  const QString wap = QStringLiteral("WAP");
  const QString mms = QStringLiteral("MMS");
  const QString fax = QStringLiteral("Fax");
  const QString picture = folder + QStringLiteral("/parlexo.png");
  planFilePage(plan, {wap, QStringLiteral("wap"), QStringLiteral("WAP file:"), picture, makePicture,
                      QStringLiteral("Sender Note:"), QStringLiteral("Our new sign, for your phone.")});
  plan.push_back({QStringLiteral("wap-page"), QStringLiteral("Turns to MMS"), mainWindow, turnTo(mms)});
  planFilePage(plan,
               {mms, QStringLiteral("mms"), QStringLiteral("Media file:"), picture, makePicture,
                QStringLiteral("Description:"), QStringLiteral("Look for this sign at the north gate.")});
  plan.push_back({QStringLiteral("mms-page"), QStringLiteral("Presses Send"), mainWindow,
                  press(QStringLiteral("S&end >"))});
  plan.push_back({QStringLiteral("mms-sent"), QStringLiteral("Reads that it was delivered to the server"),
                  notificationWindow,
                  allOf({reads(QStringLiteral("Media message successfully delivered to the server.")),
                         press(QStringLiteral("&OK"))})});
  plan.push_back({QStringLiteral("mms-after"), QStringLiteral("Turns to the fax"), mainWindow, turnTo(fax)});
  planFilePage(plan, {fax,
                      QStringLiteral("fax"),
                      QStringLiteral("Fax file:"),
                      folder + QStringLiteral("/roster.pdf"),
                      makeDocument,
                      {},
                      {}});
  plan.push_back({QStringLiteral("fax-page"), QStringLiteral("Turns to the contacts"), mainWindow,
                  turnTo(QStringLiteral("Contacts"))});
}

void planContact(Plan& plan) {
  plan.push_back({QStringLiteral("address-book"), QStringLiteral("Looks at the contacts; makes a new one"),
                  mainWindow, press(QStringLiteral("&New Contact..."))});
  plan.push_back({QStringLiteral("new-contact"), QStringLiteral("Fills in name and number"), detailsWindow,
                  allOf({typeInto(QStringLiteral("Name:"), QStringLiteral("Alma Lindqvist")),
                         typeInto(QStringLiteral("Phone:"), QStringLiteral("+61491570157")),
                         toggle(QStringLiteral("Supports &SMS")),
                         typeInto(QStringLiteral("Extra 1:"), QStringLiteral("North gate"))})});
  plan.push_back({QStringLiteral("contact-details"), QStringLiteral("Saves the contact"), detailsWindow,
                  press(QStringLiteral("&OK"))});
  plan.push_back({QStringLiteral("contacts-page"), QStringLiteral("Has more people in a file"), mainWindow,
                  press(QStringLiteral("&Import..."))});
}

bool makePeople(const QString& path) {
  QFile people(path);
  const QByteArray rows =
      "Name;Surname;Phone\r\nNadia;Olsen;+61491570158\r\nOmar;Price;0491 570 159\r\n"
      "Petra;Quist;(0491) 570-006\r\n";
  return people.open(QIODevice::WriteOnly) && people.write(rows) == rows.size();
}

void planImport(Plan& plan, const QString& folder) {
  const QString file = folder + QStringLiteral("/volunteers.csv");
  plan.push_back(
      {QStringLiteral("import-empty"), QStringLiteral("Looks for the file"), importWindow,
       allOf({[file](QWidget*) { return makePeople(file); }, press(QStringLiteral("&Browse..."))})});
  plan.push_back({QStringLiteral("import-file"), QStringLiteral("Opens it"), fileWindow,
                  allOf({typeInto(QStringLiteral("File name:"), file), press(QStringLiteral("&Open"))})});
  plan.push_back({QStringLiteral("import-opened"), QStringLiteral("Says which country the numbers are of"),
                  importWindow,
                  typeInto(QStringLiteral("Country code for numbers without one:"), QStringLiteral("+61"))});
  plan.push_back({QStringLiteral("import"), QStringLiteral("Imports them"), importWindow,
                  press(QStringLiteral("&Import"))});
  plan.push_back({QStringLiteral("import-summary"), QStringLiteral("Reads what became of each row"),
                  importWindow, allOf({reads(QStringLiteral("Imported: 3")), press(QStringLiteral("&OK"))})});
  plan.push_back({QStringLiteral("imported"), QStringLiteral("Turns to the numbers for replies"), mainWindow,
                  turnTo(QStringLiteral("Receive Messages"))});
}

void planAccount(Plan& plan) {
  plan.push_back(
      {QStringLiteral("receive-page"),
       QStringLiteral("Sees under which numbers replies arrive; turns to the account history"), mainWindow,
       allOf({reads(QStringLiteral("Australian Number:")), turnTo(QStringLiteral("Account History"))})});
  plan.push_back({QStringLiteral("history"), QStringLiteral("Asks for the history as it is now"), mainWindow,
                  press(QStringLiteral("&Refresh"))});
  plan.push_back({QStringLiteral("history-page"),
                  QStringLiteral("Sees what the message has cost; turns to the settings"), mainWindow,
                  turnTo(QStringLiteral("Settings"))});
  plan.push_back({QStringLiteral("settings"), QStringLiteral("Lets messages be sent by e-mail"), mainWindow,
                  allOf({toggle(QStringLiteral("Enable Email Messaging:")),
                         toggle(QStringLiteral("Split long SMS into several SMS")),
                         typeInto(QStringLiteral("Identity Code:"), QStringLiteral("crew-2026"))})});
  plan.push_back({QStringLiteral("settings-page"), QStringLiteral("Saves that"), mainWindow,
                  press(QStringLiteral("&Save Changes"))});
  plan.push_back(
      {QStringLiteral("settings-saved"), QStringLiteral("Reads that it was saved"), notificationWindow,
       allOf({reads(QStringLiteral("Saved email messaging preferences")), press(QStringLiteral("&OK"))})});
}

}  // namespace

std::vector<TourStep> tourPlan(const QString& user, const QString& password, const QString& folder) {
  Plan plan;
  planLogin(plan, user, password);
  planMessage(plan);
  planStatus(plan);
  planFiles(plan, folder);
  planContact(plan);
  planImport(plan, folder);
  planAccount(plan);
  plan.push_back(
      {QStringLiteral("end"), QStringLiteral("Leaves"), mainWindow, press(QStringLiteral("&Exit"))});
  return plan;
}

}  // namespace parlexo
