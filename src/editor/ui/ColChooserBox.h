#pragma once

#include <QComboBox>

#include "editor/ColChooser.h"
#include "editor/ui/GridParts.h"

/// The chooser over a heading, `ctlColCombo`. It is seen only while it is used.
class ColChooserBox final : public QComboBox {
public:
    /// What follows a choice; all must be given.
    struct Handlers {
        std::function<void()> Sorted;  ///< the rows have another order
        std::function<void()> FitColumns;
        std::function<void()> Done;  ///< it is hidden again
    };

    ColChooserBox(const GridParts& parts, Handlers handlers, QWidget* parent);

    /// Which entries it offers, see `editor::SetColComboOption`.
    void SetOptions(const QString& options);
    const QString& Options() const { return options_; }
    /// Opens over a heading, in pixels of the parent. Nothing happens where it offers nothing.
    void ShowColChooser(int col, const QRect& heading);

    void showPopup() override;
    void hidePopup() override;

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Choose(int entry);
    /// Hides it and gives the focus back.
    void Leave();

    const GridParts& parts_;
    Handlers handlers_;
    QString options_;
    std::vector<editor::ColComboItem> items_;
    int col_ = 0;
    bool isOpen_ = false;  ///< its list is seen
};
