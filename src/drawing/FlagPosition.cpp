#include "drawing/FlagPosition.h"

#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr mduUILib::WordTable<FlagPosition, 5> Positions = {{{
    {"Top right"_L1, FlagPosition::TopRight},
    {"Top left"_L1, FlagPosition::TopLeft},
    {"Bottom right"_L1, FlagPosition::BottomRight},
    {"Bottom left"_L1, FlagPosition::BottomLeft},
    {"Icon"_L1, FlagPosition::Icon},
}}};

}  // namespace

FlagPosition ReadFlagPosition(const QString& text) {
    const auto has = [&text](QLatin1StringView word) {
        return text.contains(word, Qt::CaseInsensitive);
    };
    if (has("Icon"_L1)) {
        return FlagPosition::Icon;
    }
    const bool left = has("left"_L1);
    if (has("Bottom"_L1)) {
        return left ? FlagPosition::BottomLeft : FlagPosition::BottomRight;
    }
    return left ? FlagPosition::TopLeft : FlagPosition::TopRight;
}

QString FlagPositionName(FlagPosition position) {
    return Positions.NameOf(position);
}

QStringList FlagPositionNames() {
    return Positions.Words();
}

}  // namespace drawing
