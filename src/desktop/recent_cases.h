// The cases opened of late, kept from one start to the next.
#pragma once

#include <QString>
#include <QStringList>

namespace tarnvik {

// The control file of the case that is open; empty without one.
QString OpenCasePath();

// The latest first.
QStringList RecentCases();
// Puts a case in front of the list; nothing for an empty path.
void NoteRecentCase(const QString& path);
void ForgetRecentCase(const QString& path);

}  // namespace tarnvik
