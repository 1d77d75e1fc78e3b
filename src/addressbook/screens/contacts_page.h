#pragma once

#include "addressbook/core/addressbook_services.h"
#include "ui/gradient_page.h"

namespace parlexo {

/// The address book's page: folders and groups on the left, their contacts on the right, and everything
/// that can be done with them.
class CContactsPage final : public GradientPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CContactsPage(const AddressBookServices& services, QWidget* parent = nullptr);

 private:
  AddressBookServices services_;
};

}  // namespace parlexo
