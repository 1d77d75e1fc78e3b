#include "addressbook/screens/contacts_page.h"

namespace parlexo {

CContactsPage::CContactsPage(const AddressBookServices& services, QWidget* parent)
    : GradientPage(parent), services_(services) {}

}  // namespace parlexo
