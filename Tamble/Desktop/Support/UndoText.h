#pragma once

#include <Tamble/Model/JobRecovery.h>

#include <QString>

namespace tamble::texts {

/// What the undo of a job did: "126 new files removed, 128 files put back."
QString undone(const UndoReport& report, const UndoRecord& record);

/// What became of a job during which its program died.
QString interrupted(const RecoveredJob& job);

}  // namespace tamble::texts
