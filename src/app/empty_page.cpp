#include "app/empty_page.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/gradient_page.h"

namespace parlexo {

QWidget* createEmptyPage(const QString& name) {
  auto* page = new GradientPage;
  page->setAccessibleName(name);
  auto* label = new QLabel(name);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * 1.5);
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(label);
  return page;
}

}  // namespace parlexo
