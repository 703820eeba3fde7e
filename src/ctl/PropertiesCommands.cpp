#include <QJsonArray>
#include <QJsonObject>

#include "ctl/Command.h"
#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/PropertyMerge.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// A file read into an array of its own.
struct FileRead {
    ClockProperties Array;
    bool Completed = false;

    FileRead(const Context& context, const QString& path)
        : Completed(mduLib::ReadPropertyFile(context.Services.FileSystem, path, Array)) {}

    int Status() const { return Completed ? Done : OperationFailed; }

    /// How many rows the file has given: none if it could not be read at all.
    int Rows() const { return !Completed && Array == ClockProperties() ? 0 : Array.UpperBound(); }
};

void PrintRows(int rows) {
    PrintJson(QJsonDocument(QJsonObject{{u"rows"_s, rows}}));
}

int Read(Context& context) {
    const FileRead file(context, context.Arguments[0]);
    QJsonArray rows;
    for (int row = 1; row <= file.Rows(); ++row) {
        const ClockProperty& property = file.Array[row];
        rows += QJsonObject{{u"Category"_s, property.Category},
                            {u"Name"_s, property.Name},
                            {u"Value"_s, property.Value}};
    }
    PrintJson(QJsonDocument(rows));
    return file.Status();
}

int WriteRows(Context& context, const ClockProperties& array, const QString& path) {
    PrintRows(array.UpperBound());
    const bool written = mduLib::WritePropertyFile(context.Services.FileSystem, array, path);
    return written ? Done : OperationFailed;
}

int Write(Context& context) {
    const FileRead file(context, context.Arguments[0]);
    if (!file.Completed) {
        PrintRows(0);
        return OperationFailed;
    }
    return WriteRows(context, file.Array, context.Arguments[1]);
}

int Get(Context& context) {
    const FileRead file(context, context.Arguments[0]);
    PrintValue(
        mduLib::GetProperty(context.Arguments[1], file.Array, context.Option(u"--category"_s)));
    return file.Status();
}

int Raw(Context& context) {
    const FileRead file(context, context.Arguments[0]);
    const QString name = context.Arguments[1];
    const QString category = context.Option(u"--category"_s);
    PrintValue(category.isEmpty() ? mduLib::GetPropertyRaw(name, file.Array)
                                  : mduLib::GetPropertyRawIn(name, file.Array, category));
    return file.Status();
}

int Choices(Context& context) {
    const FileRead file(context, context.Arguments[0]);
    PrintValue(mduLib::GetPropertyChoices(context.Arguments[1], file.Array));
    return file.Status();
}

int Put(Context& context) {
    const QString path = context.Arguments[0];
    FileRead file(context, path);
    if (!mduLib::MayRewrite(context.Services.FileSystem, path)) {
        PrintRows(file.Rows());
        return OperationFailed;
    }
    mduLib::PutProperty(context.Arguments[1], context.Arguments[2], file.Array,
                        context.Option(u"--category"_s));
    return WriteRows(context, file.Array, path);
}

int Merge(Context& context) {
    const bool completed =
        mduLib::MergePropertyFile(context.Services.FileSystem, context.Arguments[0],
                                  context.Arguments[1], context.Arguments[2]);
    PrintJson(QJsonDocument(QJsonObject{{u"completed"_s, completed}}));
    return completed ? Done : OperationFailed;
}

int Sort(Context& context) {
    const std::optional<int> column = context.Integer(1);
    const std::optional<int> direction = context.Integer(2);
    if (!column || *column < 1 || *column > 3 || !direction) {
        return WrongArguments;
    }
    const FileRead file(context, context.Arguments[0]);
    QJsonArray rows;
    for (const int row : mduLib::SortPropertyRows(file.Array, *column, *direction)) {
        rows += row;
    }
    PrintJson(QJsonDocument(rows));
    return file.Status();
}

}  // namespace

std::vector<Command> PropertiesCommands() {
    const QString group = u"properties"_s;
    const QStringList category = {u"--category="_s};
    return WithoutAppFolder({
        {group, u"read"_s, u"FILE"_s, 1, 1, {}, Read},
        {group, u"write"_s, u"FILE OUT"_s, 2, 2, {}, Write},
        {group, u"get"_s, u"FILE NAME [--category C]"_s, 2, 2, category, Get},
        {group, u"raw"_s, u"FILE NAME [--category C]"_s, 2, 2, category, Raw},
        {group, u"choices"_s, u"FILE NAME"_s, 2, 2, {}, Choices},
        {group, u"put"_s, u"FILE NAME VALUE [--category C]"_s, 3, 3, category, Put},
        {group, u"merge"_s, u"OLD NEW OUT"_s, 3, 3, {}, Merge},
        {group, u"sort"_s, u"FILE COLUMN DIRECTION"_s, 3, 3, {}, Sort},
    });
}

}  // namespace ctl
