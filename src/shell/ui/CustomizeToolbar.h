#pragma once

class ToolBar;
class QWidget;

/// The dialog in which the user takes buttons of the toolbar away and brings them back; it acts at
/// once, and waits until it is closed.
void Customize(ToolBar& bar, QWidget* parent);
