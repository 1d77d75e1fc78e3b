// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/storage_folders_panel.h"

#include <utility>

#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "base/settings.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString promptFor(const QString& content) {
  return StorageFoldersPanel::tr(
             "Select the folder where your %1 will be stored. Store this on a network if you wish to share "
             "with other users.")
      .arg(content);
}

QString warningFor(const QString& content) {
  return StorageFoldersPanel::tr(
             "You have changed your storage directory for your %1. You must exit application and restart "
             "application before using")
      .arg(content);
}

void showPath(QLineEdit& field, const QString& path) {
  field.setText(path);
  field.setCursorPosition(0);  // shows the start of a path that is too long
  field.setToolTip(path);
}

}  // namespace

QString chooseFolder(QWidget* parent, const QString& prompt, const QString& start) {
  QFileDialog dialog(parent, prompt, start);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  // The prompt is too long for most title bars. Only Qt's own dialog has room for it elsewhere.
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    dialog.setWindowTitle(StorageFoldersPanel::tr("Browse for Folder"));
    grid->addWidget(wrappedLabel(prompt, &dialog), grid->rowCount(), 0, 1, grid->columnCount());
  }
  return dialog.exec() == QDialog::Accepted ? QDir::toNativeSeparators(dialog.selectedFiles().value(0))
                                            : QString();
}

StorageFoldersPanel::StorageFoldersPanel(const AccountServices& services, FolderChooser chooser,
                                         QWidget* parent)
    : QGroupBox(tr("Storage Folders (Use Network Location to share between Users):"), parent),
      services_(services),
      chooser_(std::move(chooser)) {
  setObjectName(u"foldersPanel"_s);
  auto* column = new QVBoxLayout(this);
  Settings& settings = services_.settings;
  addFolder(*column, {.objectName = u"contacts"_s,
                      .content = tr("Contacts"),
                      .label = tr("&Contacts Folder: "),
                      .read = [&settings] { return settings.contactsFolder(); },
                      .write = [&settings](const QString& path) { settings.setContactsFolder(path); }});
  addFolder(*column, {.objectName = u"templates"_s,
                      .content = tr("Templates"),
                      .label = tr("&Templates Folder:"),
                      .read = [&settings] { return settings.templatesFolder(); },
                      .write = [&settings](const QString& path) { settings.setTemplatesFolder(path); }});
  column->addStretch(1);
}

void StorageFoldersPanel::addFolder(QVBoxLayout& column, const Folder& folder) {
  auto* path = readOnlyField(folder.objectName + u"Folder"_s, this);
  showPath(*path, folder.read());
  auto* browse = new PictureButton(u"..."_s, this);
  browse->setObjectName(folder.objectName + u"BrowseButton"_s);
  browse->setFixedWidth(dialogUnits(*this, 20, 14).width());
  browse->setToolTip(tr("Choose the folder for %1").arg(folder.content));
  browse->setAccessibleName(browse->toolTip());
  connect(browse, &PictureButton::clicked, this, [this, folder, path] { choose(folder, *path); });
  column.addWidget(labelFor(path, folder.label));
  auto* row = new QHBoxLayout;
  row->addWidget(path, 1);
  row->addWidget(browse);
  column.addLayout(row);
}

void StorageFoldersPanel::choose(const Folder& folder, QLineEdit& path) {
  const QString chosen = chooser_(window(), promptFor(folder.content), path.text());
  if (chosen.isEmpty()) return;
  showPath(path, chosen);
  folder.write(chosen);
  services_.notifier.warning(warningFor(folder.content));
}

}  // namespace parlexo
