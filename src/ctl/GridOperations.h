#pragma once

#include <QJsonArray>
#include <span>

namespace ctl {

class GridScript;

/// What a line of a script gives to its operation; the kinds have been checked.
struct GridArguments {
    const QJsonArray& Line;  ///< the operation's name, then its arguments

    /// A number that 32 bits can't hold is the nearest that they can.
    int Int(int index) const;
    bool Flag(int index) const { return Line[index + 1].toVariant().toBool(); }
    QString Text(int index) const { return Line[index + 1].toVariant().toString(); }
};

/// One operation by one set of arguments; an operation may stand in the table more than once.
struct GridOperation {
    const char* Name;
    /// A letter for each argument: "i" a whole number, "b" true or false, "t" a text; a
    /// number is both of these, too.
    const char* Kinds;
    /// Null where there is no result, and where the grid refuses.
    QJsonValue (*Run)(GridScript& script, const GridArguments& given);

    /// Whether a line asks for this one.
    bool Takes(const QJsonArray& line) const;
};

std::span<const GridOperation> GridOperations();

}  // namespace ctl
