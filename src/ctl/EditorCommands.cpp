#include <QJsonObject>

#include "ctl/Command.h"
#include "editor/PropertyRows.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

void PrintCommit(const QString& value, bool dirty) {
    PrintJson(QJsonDocument(
        QJsonObject{{u"value"_s, value},
                    {u"dirty"_s, dirty},
                    {u"editor"_s, editor::IsPicked(value) ? u"combo"_s : u"text"_s}}));
}

int Commit(Context& context) {
    ClockProperties properties;
    const bool isRead =
        mduLib::ReadPropertyFile(context.Services.FileSystem, context.Arguments[0], properties);
    const QString key = context.Arguments[1].trimmed();
    const int record = mduLib::FindPropertyRow(key, properties);
    if (!isRead || key.isEmpty() || record == 0) {
        PrintCommit({}, false);
        return OperationFailed;
    }
    const editor::RowCommit commit = editor::CommitRow(properties, record, context.Arguments[2]);
    PrintCommit(properties[record].Value, commit.Dirty);
    return Done;
}

}  // namespace

std::vector<Command> EditorCommands() {
    return WithoutAppFolder({
        {u"editor"_s, u"commit"_s, u"FILE KEY CELL"_s, 3, 3, {}, Commit},
    });
}

}  // namespace ctl
