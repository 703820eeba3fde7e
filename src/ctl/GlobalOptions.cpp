#include "ctl/GlobalOptions.h"

#include "platform/TzFolder.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QString SetNow(const QString& text, GlobalOptions& options) {
    options.Now = ParseWallTime(text);
    return options.Now ? QString() : u"--now wants YYYY-MM-DDTHH:MM:SS, not "_s + text;
}

QString SetUtc(const QString& text, GlobalOptions& options) {
    options.Utc = ParseWallTime(text);
    return options.Utc ? QString() : u"--utc wants YYYY-MM-DDTHH:MM:SS, not "_s + text;
}

QString SetLocalZone(const QString& text, GlobalOptions& options) {
    if (!platform::TzZone(text.toUtf8()).isValid()) {
        return u"--local-zone knows no zone "_s + text;
    }
    options.LocalZone = text.toUtf8();
    return {};
}

QString SetSeed(const QString& text, GlobalOptions& options) {
    bool ok = false;
    const qint64 seed = text.toLongLong(&ok);
    if (!ok) {
        return u"--seed wants a whole number, not "_s + text;
    }
    options.Seed = static_cast<quint32>(seed);
    return {};
}

QString SetAppFolder(const QString& text, GlobalOptions& options) {
    if (text.isEmpty()) {
        return u"--app-folder wants a folder"_s;
    }
    options.AppFolder = text;
    return {};
}

QString SetUser(const QString& text, GlobalOptions& options) {
    options.User = text;
    return {};
}

struct OptionWithValue {
    QString Name;
    QString (*Set)(const QString& text, GlobalOptions& options);
};

const OptionWithValue* FindOption(const QString& name) {
    static const OptionWithValue options[] = {{u"--app-folder"_s, SetAppFolder},
                                              {u"--user"_s, SetUser},
                                              {u"--now"_s, SetNow},
                                              {u"--utc"_s, SetUtc},
                                              {u"--local-zone"_s, SetLocalZone},
                                              {u"--seed"_s, SetSeed}};
    for (const OptionWithValue& option : options) {
        if (option.Name == name) {
            return &option;
        }
    }
    return nullptr;
}

// option = name value | name "=" value
QString TakeOptionWithValue(const QString& argument, QStringList& arguments,
                            GlobalOptions& options) {
    const QString name = argument.section(u'=', 0, 0);
    const OptionWithValue* option = FindOption(name);
    if (option == nullptr) {
        return u"Unknown option "_s + argument;
    }
    if (argument.contains(u'=')) {
        return option->Set(argument.section(u'=', 1), options);
    }
    if (arguments.isEmpty()) {
        return name + u" wants a value"_s;
    }
    return option->Set(arguments.takeFirst(), options);
}

}  // namespace

// Date and time are read apart: together they would have to be a moment of the process's own zone,
// which has none for the hour that its spring leaves out.
std::optional<QDateTime> ParseWallTime(const QString& text) {
    constexpr qsizetype separator = 10;
    const QDate date = QDate::fromString(text.left(separator), u"yyyy-MM-dd"_s);
    const QTime time = QTime::fromString(text.mid(separator), u"'T'HH:mm:ss"_s);
    if (!date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    return QDateTime(date, time, Qt::UTC);
}

QString TakeGlobalOptions(QStringList& arguments, GlobalOptions& options) {
    while (!arguments.isEmpty() && arguments.first().startsWith("--"_L1)) {
        const QString argument = arguments.takeFirst();
        if (argument == "--help"_L1) {
            options.Help = true;
        } else if (argument == "--version"_L1) {
            options.Version = true;
        } else if (QString problem = TakeOptionWithValue(argument, arguments, options);
                   !problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

}  // namespace ctl
