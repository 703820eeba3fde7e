#include <QJsonObject>

#include "ctl/Command.h"
#include "ctl/GridScript.h"
#include "foundation/PropertyFile.h"
#include "platform/Files.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// One value on a line of its own.
void PrintLine(const QJsonValue& value) {
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    PrintText(QString::fromUtf8(array.sliced(1, array.size() - 2)));
}

bool IsSetup(const QJsonArray& line) {
    return line[0] == u"Setup"_s && line.size() > 1;
}

int Run(Context& context) {
    const auto content = context.Services.FileSystem.Read(context.Arguments[0]);
    if (!content) {
        Complain(u"Can't read "_s + context.Arguments[0]);
        return OperationFailed;
    }
    GridScript script(context.Services.Clock);
    bool isSetUp = false;
    for (const QString& text : mduLib::FileLines(*content)) {
        if (text.trimmed().isEmpty()) {
            continue;
        }
        const QJsonArray line = QJsonDocument::fromJson(text.toUtf8()).array();
        isSetUp = isSetUp || IsSetup(line);
        const std::optional<QJsonValue> result = isSetUp ? script.Run(line) : std::nullopt;
        if (!result) {
            Complain(u"No such operation: "_s + text);
            return WrongArguments;
        }
        PrintLine(*result);
    }
    return Done;
}

struct NamedKey {
    QStringView Name;
    int Code;
};

constexpr NamedKey NamedKeys[] = {
    {u"Enter", editor::KeyCode::Enter},
    {u"Escape", editor::KeyCode::Escape},
    {u"Tab", editor::KeyCode::Tab},
    {u"Up", editor::KeyCode::Up},
    {u"Down", editor::KeyCode::Down},
    {u"Left", editor::KeyCode::Left},
    {u"Right", editor::KeyCode::Right},
    {u"Home", editor::KeyCode::Home},
    {u"End", editor::KeyCode::End},
    {u"PageUp", editor::KeyCode::PageUp},
    {u"PageDown", editor::KeyCode::PageDown},
    {u"Delete", editor::KeyCode::Delete},
    {u"Backspace", editor::KeyCode::Backspace},
};

// Those before have a character's code, as Enter has.
constexpr int FirstKeyWithoutCharacter = editor::KeyCode::PageUp;

/// A key by its name, or by the one character that it types.
std::optional<editor::EditKey> KeyOf(const QString& word) {
    for (const NamedKey& key : NamedKeys) {
        if (word == key.Name) {
            return editor::EditKey{key.Code, {}};
        }
    }
    const bool isCharacter = word.toUcs4().size() == 1;
    return isCharacter ? std::optional(editor::EditKey{0, word}) : std::nullopt;
}

/// A grid of one cell, with its editor.
void SetUpCell(GridScript& script, int kind, const QString& text) {
    script.Run({u"Setup"_s, 2, 1, 1, 0});
    script.Columns.SetCellCtlID(0, kind);
    const auto id = script.Columns.Ctl(0).Id;
    if (id != editor::EditorKind::Combo && id != editor::EditorKind::ComboEdit) {
        script.Grid.SetTextMatrix(1, 0, text);
        return;
    }
    const QStringList pieces = text.split(u',');
    script.Grid.SetTextMatrix(1, 0, pieces[0]);
    for (const QString& choice : pieces.mid(1)) {
        script.Columns.AddCellComboItem(0, choice);
        script.Columns.AddCellComboEditItem(0, choice);
    }
}

/// The first key enters the cell, whatever it means on a grid; Tab and Escape never do. What types
/// nothing acts in the editor at once.
void EnterCell(editor::CellEditing& editing, const editor::EditKey& key) {
    const bool isPressed = !key.Typed.isEmpty() || key.Code < FirstKeyWithoutCharacter;
    if (isPressed) {
        editing.OnGridKey(key);
    } else if (editing.OnCellKeyPress(0)) {
        editing.OnKeyFromEditor(key);
    }
}

int Key(Context& context) {
    const std::optional<int> kind = context.Integer(0);
    if (!kind || *kind < 1 || *kind > 4) {
        return WrongArguments;
    }
    GridScript script(context.Services.Clock);
    SetUpCell(script, *kind, context.Arguments[1]);
    bool isFirst = true;
    for (const QString& word : context.Arguments.mid(2)) {
        const std::optional<editor::EditKey> key = KeyOf(word);
        if (!key) {
            return WrongArguments;
        }
        if (script.Editing.IsEditing()) {
            script.Editing.OnKeyFromEditor(*key);
        } else if (isFirst) {
            EnterCell(script.Editing, *key);
        } else {
            script.Editing.OnGridKey(*key);
        }
        isFirst = false;
    }
    PrintJson(QJsonDocument(QJsonObject{{u"cell"_s, script.Grid.TextMatrix(1, 0)},
                                        {u"editing"_s, script.Editing.IsEditing()}}));
    return Done;
}

}  // namespace

std::vector<Command> GridCommands() {
    const QString group = u"grid"_s;
    return WithoutAppFolder({
        {group, u"run"_s, u"SCRIPT"_s, 1, 1, {}, Run},
        {group, u"key"_s, u"KIND TEXT KEYS..."_s, 2, -1, {}, Key},
    });
}

}  // namespace ctl
