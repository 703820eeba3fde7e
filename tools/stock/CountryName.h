#pragma once

#include <QLocale>
#include <QRegularExpression>

namespace stock {

/// The English name of a country by its two letters, fit for a file's name and for a property's
/// value; the letters themselves where it has none here.
inline QString CountryName(const QString& code) {
    const auto territory = QLocale::codeToTerritory(code.toUpper());
    QString name = QLocale::territoryToString(territory);
    if (territory == QLocale::AnyTerritory || territory == QLocale::World || name.isEmpty()) {
        return code.toUpper();
    }
    // What neither can hold: a comma ends the value.
    static const QRegularExpression unsuited(QStringLiteral("[\\\\/:*?\"<>|,=^]"));
    return name.remove(unsuited).simplified();
}

}  // namespace stock
