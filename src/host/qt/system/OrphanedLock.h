// Lock files whose owner no longer exists.
#pragma once

class QString;

// A process that was killed between making the library's lock file and writing its name into it leaves an
// empty one, which would keep everybody waiting. One that stays empty for a moment is removed.
void RemoveOrphanedLock(const QString& lock);
