#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

/// The controls of the window of properties beside its grid, and the places of all: the line to
/// search in, the name of a new zone, the grid, what is known of the current row, the buttons.
class PropertyControls {
public:
    /// Makes the controls above the grid, which is to be made next: Tab walks through all of them
    /// in that order. @param window owns them
    explicit PropertyControls(QWidget* window);
    /// Makes those below the grid, and lays out all.
    void LayOut(QWidget* window, QWidget* grid);

    QLineEdit& Search() { return *txtSearch_; }
    QPushButton& Apply() { return *cmdApply_; }  ///< `cmdButton(0)`
    QPushButton& Close() { return *cmdClose_; }  ///< `cmdButton(1)`
    /// The line that tells the name that is typed, which keeps the focus meanwhile.
    QLabel& NameLine() { return *lblNewName_; }

    /// The line of information; it wraps, scrolls where it is long, and can be selected.
    void ShowInfo(const QString& text);
    /// Shows the name of a new zone while it is typed, with its caret, and what is to be known of
    /// it.
    void ShowName(const QString& typed, const QString& note);
    void HideName();

private:
    void MakeSearch(QWidget* window);
    void MakeNameLine(QWidget* window);
    void MakeInfo(QWidget* window);
    QWidget* MakeButtons(QWidget* window);

    QLineEdit* txtSearch_ = nullptr;
    QLabel* lblNewName_ = nullptr;
    QPlainTextEdit* txtInfo_ = nullptr;
    QPushButton* cmdApply_ = nullptr;
    QPushButton* cmdClose_ = nullptr;
};
