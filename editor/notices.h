// What the user is told when there is more than one thing to tell.
#pragma once

#include <QStringList>

namespace vorlane::editor {

// In one sentence; empty ones are passed over.
QString Joined(const QStringList& notices);

}  // namespace vorlane::editor
