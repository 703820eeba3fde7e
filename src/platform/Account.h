#pragma once

#include <QString>

namespace platform {

/// Who is logged on. A user's data lie in a folder of that name.
class Account {
public:
    virtual ~Account() = default;
    /// The name as the machine has it; empty when none is known. Then there is no folder of the
    /// user's either (`PathTable::DataFolder`). Asked for while the paths are set up.
    virtual QString UserName() const = 0;
};

}  // namespace platform
