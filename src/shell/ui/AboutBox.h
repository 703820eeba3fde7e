#pragma once

class QString;
class QWidget;

/// What this program is, its version and @p edition, a line about its zone database; waits until it
/// is closed.
void ShowAboutBox(QWidget* parent, const QString& edition);
