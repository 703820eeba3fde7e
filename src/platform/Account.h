#pragma once

#include <QString>

namespace platform {

/// Who is logged on. A user's data lie in a folder of that name.
class Account {
public:
    virtual ~Account() = default;
    virtual QString UserName() const = 0;  ///< empty when no name is known
};

}  // namespace platform
