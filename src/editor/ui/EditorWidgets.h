#pragma once

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QStyledItemDelegate>
#include <functional>

#include "editor/ui/CellLook.h"

/// A line with spin buttons, `ctlUpDown` and its `ctlText`. What a step does is decided elsewhere.
class SpinEditor final : public QAbstractSpinBox {
public:
    /// @param spin gets 1 for up and -1 for down
    SpinEditor(std::function<void(int)> spin, QWidget* parent);

    QLineEdit* Line() const { return lineEdit(); }
    void stepBy(int steps) override;

protected:
    /// Goes on to the grid, which scrolls: a wheel changes no value in passing.
    void wheelEvent(QWheelEvent* event) override;
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

private:
    std::function<void(int)> spin_;
};

/// A list to pick from or a line with a list. Its list is `ctlList`.
class ListEditor final : public QComboBox {
public:
    struct Handlers {
        std::function<void()> Opened;  ///< behind the opening
        std::function<void()> Closed;  ///< behind the closing, whatever has been chosen
        std::function<CellLook(const QString&)> LookOfItem;
    };

    /// All handlers must be given.
    ListEditor(const QStringList& items, bool hasLine, Handlers handlers, QWidget* parent);

    bool IsOpen() const { return isOpen_; }
    void showPopup() override;
    void hidePopup() override;

protected:
    /// Likewise; the list itself, once it is open, scrolls.
    void wheelEvent(QWheelEvent* event) override;

private:
    Handlers handlers_;
    bool isOpen_ = false;
};

/// The line of an editor; null where it has none.
QLineEdit* LineOf(QWidget* editor);
