#include "platform/Accounts.h"

#include <pwd.h>
#include <unistd.h>

namespace platform {

QString UnixAccount::UserName() const {
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr ? QString::fromLocal8Bit(entry->pw_name).trimmed() : QString();
}

}  // namespace platform
