#include "desktop/guide_window.h"

#include <QAbstractTextDocumentLayout>
#include <QDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

namespace tarnvik {

namespace {

// Beside the program when it runs from where it was built, else where it was installed.
constexpr const char* kPlaces[] = {"/guide/user-guide.md", "/../share/doc/tarnvik/user-guide.md"};

QString GuidePath(const QString& program_folder) {
  for (const char* place : kPlaces) {
    if (QFileInfo::exists(program_folder + place)) return program_folder + place;
  }
  return {};
}

constexpr int kTextWidth = 780;

// The pictures show whole windows: they are brought down to the width of the text.
class GuideText : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant found = QTextBrowser::loadResource(type, name);
    const QImage picture =
        type == QTextDocument::ImageResource ? QImage::fromData(found.toByteArray()) : QImage();
    if (picture.width() <= kTextWidth) return found;
    return picture.scaledToWidth(kTextWidth, Qt::SmoothTransformation);
  }
};

// The sections; a click brings one to the top of the text.
QListWidget* Contents(QTextBrowser& text, QWidget* parent) {
  auto* list = new QListWidget(parent);
  list->setAccessibleName(QObject::tr("Sections"));
  for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() != 2) continue;
    auto* section = new QListWidgetItem(block.text(), list);
    section->setData(Qt::UserRole, block.position());
  }
  QObject::connect(list, &QListWidget::currentItemChanged, &text, [&text](const QListWidgetItem* section) {
    const QTextBlock block = text.document()->findBlock(section->data(Qt::UserRole).toInt());
    const QRectF place = text.document()->documentLayout()->blockBoundingRect(block);
    text.verticalScrollBar()->setValue(static_cast<int>(place.top()));
  });
  return list;
}

}  // namespace

void OpenGuide(const QString& program_folder, QWidget* parent) {
  const QString path = GuidePath(program_folder);
  if (path.isEmpty()) {
    QMessageBox::warning(parent, "Tarnvik", QObject::tr("The user guide is not available"));
    return;
  }
  auto* window = new QDialog(parent);
  window->setObjectName("guide");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(QObject::tr("Using Tarnvik"));
  window->resize(1060, 760);
  auto* text = new GuideText(window);
  text->setOpenExternalLinks(true);
  text->setSource(QUrl::fromLocalFile(path), QTextDocument::MarkdownResource);
  QListWidget* sections = Contents(*text, window);
  auto* layout = new QHBoxLayout(window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(sections, 1);
  layout->addWidget(text, 4);
  text->setFocus();
  window->show();
}

}  // namespace tarnvik
