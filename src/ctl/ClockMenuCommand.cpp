#include <QJsonArray>
#include <QJsonObject>

#include "clock/FormMenuState.h"
#include "ctl/Command.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "platform/Account.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QJsonArray ToJson(const std::vector<clockcore::MenuNode>& nodes) {
    QJsonArray array;
    for (const clockcore::MenuNode& node : nodes) {
        array += QJsonObject{{u"name"_s, node.Name},
                             {u"caption"_s, node.Caption},
                             {u"checked"_s, node.Ticked == clockcore::MenuNode::Tick::On},
                             {u"enabled"_s, node.Enabled},
                             {u"children"_s, ToJson(node.Children)}};
    }
    return array;
}

/// The window that the file's keys ask for, outside a shell.
clockcore::FormWindowFacts WindowOf(const ClockProperties& properties) {
    return {.IsMDIChild = false,
            .IsEnabled = mduUILib::YesNoToBool(mduLib::GetProperty(u"Enable"_s, properties)),
            .WindowState =
                mduUILib::WindowStateValue(mduLib::GetProperty(u"Window State"_s, properties))};
}

int Clock(Context& context) {
    const QString file = mduLib::ToNativePath(context.Arguments[0]);
    clockcore::ClockData data;
    data.PropertyFileName = file;
    const platform::Files& files = context.Services.FileSystem;
    if (!mduLib::MayRewrite(files, file) ||
        !mduLib::ReadPropertyFile(files, file, data.EditProperties())) {
        Complain(file + u" can't be read as a property file"_s);
        PrintJson(QJsonDocument(QJsonArray()));
        return OperationFailed;
    }
    data.Tag.Kind = clockcore::GetClockType(data.Properties());
    PathTable& paths = context.State.Paths;
    mduMain::NameUserFolders(paths, context.Services.User.UserName().trimmed());
    if (context.HasOption(u"--style-folder"_s)) {
        paths.StylesFolder = mduLib::ToNativePath(context.Option(u"--style-folder"_s)) + u'/';
    }
    Forms windows;
    const Program program{context.Services, context.State, windows};
    const clockcore::FormMenuState state =
        clockcore::ReadFormMenuState(program, data, WindowOf(data.Properties()));
    PrintJson(QJsonDocument(ToJson(clockcore::MakeFormMenu(state, {}).Children)));
    return Done;
}

}  // namespace

Command ClockMenuCommand() {
    return {u"menus"_s, u"clock"_s, u"FILE [--style-folder DIR]"_s, 1, 1, {u"--style-folder="_s},
            Clock};
}

}  // namespace ctl
