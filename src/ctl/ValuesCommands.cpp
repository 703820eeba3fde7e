#include <QJsonObject>

#include "ctl/Command.h"
#include "foundation/NamedValues.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

int Colour(Context& context) {
    const QString& text = context.Arguments[0];
    const int value = mduUILib::ColourValue(text, context.Services.Random);
    PrintJson(
        QJsonDocument(QJsonObject{{u"value"_s, value}, {u"text"_s, mduUILib::ColourWord(text)}}));
    return Done;
}

int ColourName(Context& context) {
    const std::optional<int> colour = context.Integer(0);
    if (!colour) {
        return WrongArguments;
    }
    PrintValue(mduUILib::ColourName(*colour));
    return Done;
}

int YesNo(Context& context) {
    PrintValue(mduUILib::YesNoToBool(context.Arguments[0]));
    return Done;
}

int Wrap(Context& context) {
    const std::optional<int> width = context.Integer(1);
    if (!width) {
        return WrongArguments;
    }
    PrintValue(mduLib::WrapText(context.Arguments[0], *width));
    return Done;
}

}  // namespace

std::vector<Command> ValuesCommands() {
    const QString group = u"values"_s;
    return WithoutAppFolder({
        {group, u"colour"_s, u"TEXT"_s, 1, 1, {}, Colour},
        {group, u"colour-name"_s, u"NUMBER"_s, 1, 1, {}, ColourName},
        {group, u"yes-no"_s, u"TEXT"_s, 1, 1, {}, YesNo},
        {group, u"wrap"_s, u"TEXT WIDTH"_s, 2, 2, {}, Wrap},
    });
}

}  // namespace ctl
