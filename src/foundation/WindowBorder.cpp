#include "foundation/WindowBorder.h"

#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

constexpr WordTable<WindowBorder, 3> Borders = {{{
    {"No Border"_L1, WindowBorder::NoBorder},
    {"3D Border"_L1, WindowBorder::Raised},
    {"Classic"_L1, WindowBorder::Plain},
}}};

}  // namespace

WindowBorder ReadWindowBorder(const QString& text) {
    return Borders.Find(text).value_or(WindowBorder::Unknown);
}

QStringList WindowBorderNames() {
    return Borders.Words();
}

}  // namespace mduUILib
