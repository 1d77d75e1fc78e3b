#pragma once

class QString;
class QWidget;

namespace parlexo {

/// A page that shows nothing but its name, for a tab that has no function yet.
[[nodiscard]] QWidget* createEmptyPage(const QString& name);

}  // namespace parlexo
