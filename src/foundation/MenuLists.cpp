#include "foundation/MenuLists.h"

#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

bool CheckMenuItem(const QString& caption, const QString& value) {
    return caption != u"-"_s && caption.trimmed() == value.trimmed();
}

QStringList FillMenuFromList(const QString& list) {
    QStringList captions;
    for (const QString& part : list.split(u',')) {
        if (const QString caption = part.trimmed(); !caption.isEmpty()) {
            captions += caption;
        }
    }
    return captions;
}

QStringList FillColourMenu() {
    return MenuColours();
}

}  // namespace mduUILib
