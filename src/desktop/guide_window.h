// The user guide in a window of its own.
#pragma once

#include <QString>

class QWidget;

namespace tarnvik {

// Shows the guide that lies with the program; says so in a box when there is none.
void OpenGuide(const QString& program_folder, QWidget* parent);

}  // namespace tarnvik
