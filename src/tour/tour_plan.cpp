// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/tour_plan.h"

#include <cstdio>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "tour/tour_hands.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using Plan = std::vector<TourStep>;
using Act = std::function<bool(QWidget* window)>;

const QString loginWindow = u"Parlexo(TM) : Login"_s;
const QString newsWindow = u"Parlexo(TM) : News"_s;
const QString mainWindow = u"Parlexo(TM) : Messaging Client"_s;
const QString selectionWindow = u"Parlexo(TM) : Contacts"_s;
const QString detailsWindow = u"Parlexo(TM) : Contact Details"_s;
const QString importWindow = u"Parlexo(TM) : Import Contacts"_s;
const QString fileWindow = u"Import Contacts"_s;
const QString notificationWindow = u"Parlexo(TM) : Notification"_s;

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
  return [](QWidget* window) { return hands::tick(window, u"Groups:"_s, u"My Personal Contacts"_s); };
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
  plan.push_back({u"login"_s, u"Logs in as %1"_s.arg(user), loginWindow,
                  allOf({typeInto(u"User Name:"_s, user), typeInto(u"Password:"_s, password)})});
  plan.push_back({u"login-filled"_s, u"Presses Login"_s, loginWindow, press(u"Login"_s)});
  plan.push_back({u"news"_s, u"Reads the news"_s, newsWindow, press(u"&OK"_s)});
}

void planMessage(Plan& plan) {
  plan.push_back({u"main-window"_s, u"Sees the balance; opens the contacts"_s, mainWindow,
                  press(u"&Select Contacts..."_s)});
  plan.push_back({u"contacts"_s, u"Ticks a group"_s, selectionWindow, tickOwnContacts()});
  plan.push_back(
      {u"contacts-ticked"_s, u"Takes the ticked contacts"_s, selectionWindow, press(u"&Select"_s)});
  plan.push_back({u"recipients"_s, u"Writes a message"_s, mainWindow,
                  typeInto(u"Message"_s,
                           u"Dear crew, tomorrow's start moves to 7:30 at the north gate. Bring "
                           "rain gear. Thanks!"_s)});
  plan.push_back({u"sms-page"_s, u"Presses Send"_s, mainWindow, press(u"S&end >"_s)});
  plan.push_back({u"sent"_s, u"Reads that the message was delivered to the server"_s, notificationWindow,
                  allOf({reads(u"SMS message successfully delivered to the server."_s), press(u"&OK"_s)})});
}

void planStatus(Plan& plan) {
  const QString status = u"Status"_s;
  plan.push_back({u"main-window-after"_s, u"Turns to the Status tab"_s, mainWindow, turnTo(status)});
  plan.push_back({u"status"_s, u"Asks for the status of every message"_s, mainWindow,
                  allOf({[status](QWidget* window) { return hands::selectAll(window, status); },
                         press(u"Get &Status"_s)})});
  plan.push_back({u"status-updated"_s, u"Sees how far each one is"_s, mainWindow, [status](QWidget* window) {
                    std::printf("    %s\n", qUtf8Printable(hands::readList(window, status, 3)));
                    return hands::showTab(window, u"WAP"_s);
                  }});
}

bool makePicture(const QString& path) {
  if (QFile::exists(path)) return true;
  // A copy of what the program carries in itself is read-only at first, and such a file can't be sent.
  return QFile::copy(u":/icons/parlexo-client-256.png"_s, path) &&
         QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool makeDocument(const QString& path) {
  QPdfWriter document(path);
  QPainter painter;
  if (!painter.begin(&document)) return false;
  const QRect page(QPoint(), document.pageLayout().paintRectPixels(document.resolution()).size());
  painter.drawText(page, Qt::AlignTop, u"Roster of week 31: see the notice board."_s);
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
  plan.push_back(
      {page.picture + u"-empty"_s, u"Chooses a file to send as "_s + page.tab, mainWindow, allOf(acts)});
  plan.push_back(
      {page.picture + u"-filled"_s, u"Opens the contacts"_s, mainWindow, press(u"&Select Contacts..."_s)});
  plan.push_back({page.picture + u"-contacts"_s, u"Ticks and takes a group"_s, selectionWindow,
                  allOf({tickOwnContacts(), press(u"&Select"_s)})});
}

void planFiles(Plan& plan, const QString& folder) {
  const QString wap = u"WAP"_s;
  const QString mms = u"MMS"_s;
  const QString fax = u"Fax"_s;
  const QString picture = folder + u"/parlexo.png"_s;
  planFilePage(plan, {wap, u"wap"_s, u"WAP file:"_s, picture, makePicture, u"Sender Note:"_s,
                      u"Our new sign, for your phone."_s});
  plan.push_back({u"wap-page"_s, u"Turns to MMS"_s, mainWindow, turnTo(mms)});
  planFilePage(plan, {mms, u"mms"_s, u"Media file:"_s, picture, makePicture, u"Description:"_s,
                      u"Look for this sign at the north gate."_s});
  plan.push_back({u"mms-page"_s, u"Presses Send"_s, mainWindow, press(u"S&end >"_s)});
  plan.push_back({u"mms-sent"_s, u"Reads that it was delivered to the server"_s, notificationWindow,
                  allOf({reads(u"Media message successfully delivered to the server."_s), press(u"&OK"_s)})});
  plan.push_back({u"mms-after"_s, u"Turns to the fax"_s, mainWindow, turnTo(fax)});
  planFilePage(plan, {fax, u"fax"_s, u"Fax file:"_s, folder + u"/roster.pdf"_s, makeDocument, {}, {}});
  plan.push_back({u"fax-page"_s, u"Turns to the contacts"_s, mainWindow, turnTo(u"Contacts"_s)});
}

void planContact(Plan& plan) {
  plan.push_back({u"address-book"_s, u"Looks at the contacts; makes a new one"_s, mainWindow,
                  press(u"&New Contact..."_s)});
  plan.push_back({u"new-contact"_s, u"Fills in name and number"_s, detailsWindow,
                  allOf({typeInto(u"Name:"_s, u"Alma Lindqvist"_s), typeInto(u"Phone:"_s, u"+61491570157"_s),
                         toggle(u"Supports &SMS"_s), typeInto(u"Extra 1:"_s, u"North gate"_s)})});
  plan.push_back({u"contact-details"_s, u"Saves the contact"_s, detailsWindow, press(u"&OK"_s)});
  plan.push_back({u"contacts-page"_s, u"Has more people in a file"_s, mainWindow, press(u"&Import..."_s)});
}

bool makePeople(const QString& path) {
  QFile people(path);
  const QByteArray rows =
      "Name;Surname;Phone\r\nNadia;Olsen;+61491570158\r\nOmar;Price;0491 570 159\r\n"
      "Petra;Quist;(0491) 570-006\r\n";
  return people.open(QIODevice::WriteOnly) && people.write(rows) == rows.size();
}

void planImport(Plan& plan, const QString& folder) {
  const QString file = folder + u"/volunteers.csv"_s;
  plan.push_back({u"import-empty"_s, u"Looks for the file"_s, importWindow,
                  allOf({[file](QWidget*) { return makePeople(file); }, press(u"&Browse..."_s)})});
  plan.push_back({u"import-file"_s, u"Opens it"_s, fileWindow,
                  allOf({typeInto(u"File name:"_s, file), press(u"&Open"_s)})});
  plan.push_back({u"import-opened"_s, u"Says which country the numbers are of"_s, importWindow,
                  typeInto(u"Country code for numbers without one:"_s, u"+61"_s)});
  plan.push_back({u"import"_s, u"Imports them"_s, importWindow, press(u"&Import"_s)});
  plan.push_back({u"import-summary"_s, u"Reads what became of each row"_s, importWindow,
                  allOf({reads(u"Imported: 3"_s), press(u"&OK"_s)})});
  plan.push_back(
      {u"imported"_s, u"Turns to the numbers for replies"_s, mainWindow, turnTo(u"Receive Messages"_s)});
}

void planAccount(Plan& plan) {
  plan.push_back({u"receive-page"_s,
                  u"Sees under which numbers replies arrive; turns to the account history"_s, mainWindow,
                  allOf({reads(u"Australian Number:"_s), turnTo(u"Account History"_s)})});
  plan.push_back({u"history"_s, u"Asks for the history as it is now"_s, mainWindow, press(u"&Refresh"_s)});
  plan.push_back({u"history-page"_s, u"Sees what the message has cost; turns to the settings"_s, mainWindow,
                  turnTo(u"Settings"_s)});
  plan.push_back({u"settings"_s, u"Lets messages be sent by e-mail"_s, mainWindow,
                  allOf({toggle(u"Enable Email Messaging:"_s), toggle(u"Split long SMS into several SMS"_s),
                         typeInto(u"Identity Code:"_s, u"crew-2026"_s)})});
  plan.push_back({u"settings-page"_s, u"Saves that"_s, mainWindow, press(u"&Save Changes"_s)});
  plan.push_back({u"settings-saved"_s, u"Reads that it was saved"_s, notificationWindow,
                  allOf({reads(u"Saved email messaging preferences"_s), press(u"&OK"_s)})});
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
  plan.push_back({u"end"_s, u"Leaves"_s, mainWindow, press(u"&Exit"_s)});
  return plan;
}

}  // namespace parlexo
