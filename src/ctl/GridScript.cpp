#include "ctl/GridScript.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "ctl/GridOperations.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

bool IsOfKind(const QJsonValue& value, char kind) {
    if (kind == 't') {
        return value.isString() || value.isDouble();
    }
    if (kind == 'b') {
        return value.isBool() || value.isDouble();
    }
    return value.isDouble() && std::trunc(value.toDouble()) == value.toDouble();
}

}  // namespace

int GridArguments::Int(int index) const {
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(Line[index + 1].toDouble(), least, most));
}

bool GridOperation::Takes(const QJsonArray& line) const {
    const QByteArrayView kinds(Kinds);
    if (line[0].toString() != QLatin1StringView(Name) || line.size() != kinds.size() + 1) {
        return false;
    }
    for (qsizetype index = 0; index < kinds.size(); ++index) {
        if (!IsOfKind(line[index + 1], kinds[index])) {
            return false;
        }
    }
    return true;
}

std::optional<QJsonValue> GridScript::Run(const QJsonArray& line) {
    for (const GridOperation& operation : GridOperations()) {
        if (operation.Takes(line)) {
            return operation.Run(*this, {line});
        }
    }
    return std::nullopt;
}

}  // namespace ctl
