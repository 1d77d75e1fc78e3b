// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "tour/tour.h"
#include "tour/window_driver.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using Plan = std::vector<TourStep>;
using Action = std::function<bool(QWidget* window)>;

const QString loginWindow = u"Parlexo(TM) : Login"_s;
const QString newsWindow = u"Parlexo(TM) : News"_s;
const QString mainWindow = u"Parlexo(TM) : Messaging Client"_s;
const QString selectionWindow = u"Parlexo(TM) : Contacts"_s;
const QString detailsWindow = u"Parlexo(TM) : Contact Details"_s;
const QString importWindow = u"Parlexo(TM) : Import Contacts"_s;
const QString fileWindow = u"Import Contacts"_s;
const QString notificationWindow = u"Parlexo(TM) : Notification"_s;

Action click(const QString& button) {
  return [button](QWidget* window) { return driver::click(window, button); };
}

Action openTab(const QString& tab) {
  return [tab](QWidget* window) { return driver::openTab(window, tab); };
}

Action typeInto(const QString& label, const QString& text) {
  return [label, text](QWidget* window) { return driver::typeInto(window, label, text); };
}

Action toggle(const QString& box) {
  return [box](QWidget* window) { return driver::toggle(window, box); };
}

Action selectOwnContacts() {
  return [](QWidget* window) { return driver::toggleRow(window, u"Groups:"_s, u"My Personal Contacts"_s); };
}

Action showsText(const QString& text) {
  return [text](QWidget* window) { return driver::showsText(window, text); };
}

Action sequence(const std::vector<Action>& actions) {
  return [actions](QWidget* window) {
    bool succeeded = true;
    for (const Action& action : actions) succeeded = succeeded && action(window);
    return succeeded;
  };
}

void addLoginSteps(Plan& plan, const QString& user, const QString& password) {
  plan.push_back({u"login"_s, u"Logs in as %1"_s.arg(user), loginWindow,
                  sequence({typeInto(u"User Name:"_s, user), typeInto(u"Password:"_s, password)})});
  plan.push_back({u"login-filled"_s, u"Presses Login"_s, loginWindow, click(u"Login"_s)});
  plan.push_back({u"news"_s, u"Reads the news"_s, newsWindow, click(u"&OK"_s)});
}

void addMessageSteps(Plan& plan) {
  plan.push_back({u"main-window"_s, u"Sees the balance; selects contacts"_s, mainWindow,
                  click(u"&Select Contacts..."_s)});
  plan.push_back({u"contacts"_s, u"Selects a group"_s, selectionWindow, selectOwnContacts()});
  plan.push_back({u"contacts-ticked"_s, u"Applies the selection"_s, selectionWindow, click(u"&Select"_s)});
  plan.push_back({u"recipients"_s, u"Writes a message"_s, mainWindow,
                  typeInto(u"Message"_s,
                           u"Dear crew, tomorrow's start moves to 7:30 at the north gate. Bring "
                           "rain gear. Thanks!"_s)});
  plan.push_back({u"sms-page"_s, u"Presses Send"_s, mainWindow, click(u"S&end >"_s)});
  plan.push_back(
      {u"sent"_s, u"Confirms that the message was delivered to the server"_s, notificationWindow,
       sequence({showsText(u"SMS message successfully delivered to the server."_s), click(u"&OK"_s)})});
}

void addStatusSteps(Plan& plan) {
  const QString status = u"Status"_s;
  plan.push_back({u"main-window-after"_s, u"Opens the Status tab"_s, mainWindow, openTab(status)});
  plan.push_back({u"status"_s, u"Queries the status of all messages"_s, mainWindow,
                  sequence({[status](QWidget* window) { return driver::selectAll(window, status); },
                            click(u"Get &Status"_s)})});
  plan.push_back(
      {u"status-updated"_s, u"Checks each status; opens WAP"_s, mainWindow, [status](QWidget* window) {
         std::printf("    %s\n", qUtf8Printable(driver::readColumn(window, status, 3)));
         return driver::openTab(window, u"WAP"_s);
       }});
}

bool createPicture(const QString& path) {
  if (QFile::exists(path)) return true;
  // A copy of an embedded resource is read-only, and such a file can't be sent.
  return QFile::copy(u":/icons/parlexo-client-256.png"_s, path) &&
         QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool createDocument(const QString& path) {
  QPdfWriter document(path);
  QPainter painter;
  if (!painter.begin(&document)) return false;
  const QRect page(QPoint(), document.pageLayout().paintRectPixels(document.resolution()).size());
  painter.drawText(page, Qt::AlignTop, u"Roster of week 31: see the notice board."_s);
  return painter.end();
}

struct FilePageInput {
  QString tab;
  QString picture;
  QString fileLabel;
  QString file;
  bool (*createFile)(const QString& path);
  QString noteLabel;  ///< empty if the page has no note field
  QString note;
};

void addFilePageSteps(Plan& plan, const FilePageInput& page) {
  std::vector<Action> actions = {[page](QWidget*) { return page.createFile(page.file); },
                                 typeInto(page.fileLabel, page.file)};
  if (!page.noteLabel.isEmpty()) actions.push_back(typeInto(page.noteLabel, page.note));
  plan.push_back({page.picture + u"-empty"_s, u"Chooses a file to send as "_s + page.tab, mainWindow,
                  sequence(actions)});
  plan.push_back(
      {page.picture + u"-filled"_s, u"Selects contacts"_s, mainWindow, click(u"&Select Contacts..."_s)});
  plan.push_back({page.picture + u"-contacts"_s, u"Selects a group"_s, selectionWindow,
                  sequence({selectOwnContacts(), click(u"&Select"_s)})});
}

void addFilesSteps(Plan& plan, const QString& folder) {
  const QString wap = u"WAP"_s;
  const QString mms = u"MMS"_s;
  const QString fax = u"Fax"_s;
  const QString picture = folder + u"/parlexo.png"_s;
  addFilePageSteps(plan, {wap, u"wap"_s, u"WAP file:"_s, picture, createPicture, u"Sender Note:"_s,
                          u"Our new sign, for your phone."_s});
  plan.push_back({u"wap-page"_s, u"Opens MMS"_s, mainWindow, openTab(mms)});
  addFilePageSteps(plan, {mms, u"mms"_s, u"Media file:"_s, picture, createPicture, u"Description:"_s,
                          u"Look for this sign at the north gate."_s});
  plan.push_back({u"mms-page"_s, u"Presses Send"_s, mainWindow, click(u"S&end >"_s)});
  plan.push_back(
      {u"mms-sent"_s, u"Confirms that it was delivered to the server"_s, notificationWindow,
       sequence({showsText(u"Media message successfully delivered to the server."_s), click(u"&OK"_s)})});
  plan.push_back({u"mms-after"_s, u"Opens Fax"_s, mainWindow, openTab(fax)});
  addFilePageSteps(plan, {fax, u"fax"_s, u"Fax file:"_s, folder + u"/roster.pdf"_s, createDocument, {}, {}});
  plan.push_back({u"fax-page"_s, u"Opens Contacts"_s, mainWindow, openTab(u"Contacts"_s)});
}

void addContactSteps(Plan& plan) {
  plan.push_back({u"address-book"_s, u"Creates a new contact"_s, mainWindow, click(u"&New Contact..."_s)});
  plan.push_back(
      {u"new-contact"_s, u"Fills in name and number"_s, detailsWindow,
       sequence({typeInto(u"Name:"_s, u"Alma Lindqvist"_s), typeInto(u"Phone:"_s, u"+61491570157"_s),
                 toggle(u"Supports &SMS"_s), typeInto(u"Extra 1:"_s, u"North gate"_s)})});
  plan.push_back({u"contact-details"_s, u"Saves the contact"_s, detailsWindow, click(u"&OK"_s)});
  plan.push_back(
      {u"contacts-page"_s, u"Imports more contacts from a file"_s, mainWindow, click(u"&Import..."_s)});
}

bool createVolunteers(const QString& path) {
  QFile file(path);
  const QByteArray rows =
      "Name;Surname;Phone\r\nNadia;Olsen;+61491570158\r\nOmar;Price;0491 570 159\r\n"
      "Petra;Quist;(0491) 570-006\r\n";
  return file.open(QIODevice::WriteOnly) && file.write(rows) == rows.size();
}

void addImportSteps(Plan& plan, const QString& folder) {
  const QString file = folder + u"/volunteers.csv"_s;
  plan.push_back({u"import-empty"_s, u"Browses for the file"_s, importWindow,
                  sequence({[file](QWidget*) { return createVolunteers(file); }, click(u"&Browse..."_s)})});
  plan.push_back({u"import-file"_s, u"Opens it"_s, fileWindow,
                  sequence({typeInto(u"File name:"_s, file), click(u"&Open"_s)})});
  plan.push_back({u"import-opened"_s, u"Enters the country code of the numbers"_s, importWindow,
                  typeInto(u"Country code for numbers without one:"_s, u"+61"_s)});
  plan.push_back({u"import"_s, u"Starts the import"_s, importWindow, click(u"&Import"_s)});
  plan.push_back({u"import-summary"_s, u"Reads the import summary"_s, importWindow,
                  sequence({showsText(u"Imported: 3"_s), click(u"&OK"_s)})});
  plan.push_back({u"imported"_s, u"Opens Receive Messages"_s, mainWindow, openTab(u"Receive Messages"_s)});
}

void addAccountSteps(Plan& plan) {
  plan.push_back({u"receive-page"_s, u"Reads the numbers for replies; opens Account History"_s, mainWindow,
                  sequence({showsText(u"Australian Number:"_s), openTab(u"Account History"_s)})});
  plan.push_back({u"history"_s, u"Refreshes the history"_s, mainWindow, click(u"&Refresh"_s)});
  plan.push_back({u"history-page"_s, u"Reads the costs of the messages; opens Settings"_s, mainWindow,
                  openTab(u"Settings"_s)});
  plan.push_back(
      {u"settings"_s, u"Enables messages by e-mail"_s, mainWindow,
       sequence({toggle(u"Enable Email Messaging:"_s), toggle(u"Split long SMS into several SMS"_s),
                 typeInto(u"Identity Code:"_s, u"crew-2026"_s)})});
  plan.push_back({u"settings-page"_s, u"Saves the changes"_s, mainWindow, click(u"&Save Changes"_s)});
  plan.push_back({u"settings-saved"_s, u"Confirms that they were saved"_s, notificationWindow,
                  sequence({showsText(u"Saved email messaging preferences"_s), click(u"&OK"_s)})});
}

}  // namespace

std::vector<TourStep> createTourPlan(const QString& user, const QString& password, const QString& folder) {
  Plan plan;
  addLoginSteps(plan, user, password);
  addMessageSteps(plan);
  addStatusSteps(plan);
  addFilesSteps(plan, folder);
  addContactSteps(plan);
  addImportSteps(plan, folder);
  addAccountSteps(plan);
  plan.push_back({u"end"_s, u"Exits"_s, mainWindow, click(u"&Exit"_s)});
  return plan;
}

}  // namespace parlexo
