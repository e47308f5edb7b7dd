// The window that moves while something slow runs.
#pragma once

#include <QProgressDialog>

/// Says that the program is at work, not how far it got. It blocks its parent, if it has one, and the user
/// cannot send it away. It serves the event loop with each call of setValue, and appears with the first of
/// them that comes a moment after another.
class BusyIndicator : public QProgressDialog
{
public:
    explicit BusyIndicator(QWidget* parent);

    /// Does nothing: Escape would hide it and hand the window below back to the user, with the work running.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Puts the bar in the middle, where there is no label above it.
    void resizeEvent(QResizeEvent* event) override;
};
