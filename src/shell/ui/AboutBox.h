#pragma once

class QWidget;

/// What this program is, and its version; waits until it is closed.
void ShowAboutBox(QWidget* parent);
