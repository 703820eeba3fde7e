#include "foundation/MenuLists.h"

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"

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

QString ColourCaption(const QString& value, platform::RandomNumbers& random) {
    const QStringList named = MenuColours() + QStringList{u"Transparent"_s, u"Random"_s};
    for (const QString& name : named) {
        if (ColourWord(value) == ColourWord(name)) {
            return name;
        }
    }
    return mduAPILib::IsNumeric(value) ? ColourName(ColourValue(value, random)) : value;
}

QStringList FillColourMenu() {
    return MenuColours();
}

}  // namespace mduUILib
