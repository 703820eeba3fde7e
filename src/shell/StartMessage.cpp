#include "shell/StartMessage.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

QString TimeOfDay(int hour) {
    return hour < 12 ? u"Morning"_s : hour > 18 ? u"Evening"_s : u"Afternoon"_s;
}

}  // namespace

QString StartMessage(const QString& pattern, const QDateTime& now) {
    if (pattern.isEmpty() || pattern == u"0"_s) {
        return {};
    }
    QString text = pattern;
    text.replace(u"<date>"_s, now.date().toString(u"MM/dd/yyyy"_s));
    return text.replace(u"<Morning/Afternoon/Evening>"_s, TimeOfDay(now.time().hour()));
}

}  // namespace shell
