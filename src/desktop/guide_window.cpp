#include "desktop/guide_window.h"

#include <QDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

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
  window->resize(900, 700);
  auto* text = new QTextBrowser(window);
  text->setOpenExternalLinks(true);
  text->setSource(QUrl::fromLocalFile(path), QTextDocument::MarkdownResource);
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text);
  window->show();
}

}  // namespace tarnvik
