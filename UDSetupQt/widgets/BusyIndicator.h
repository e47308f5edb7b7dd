// The window that is shown during a slow operation.
#pragma once

#include <QProgressDialog>

/// Shows that the program is busy, but no progress. It blocks its parent, if it has one, and the user cannot
/// close it. Each call of setValue processes events. The window appears with the first call that comes a
/// moment after an earlier one.
class BusyIndicator : public QProgressDialog
{
public:
    explicit BusyIndicator(QWidget* parent);

    /// Does nothing: Escape would hide the dialog and unblock the window below while the work still runs.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Centres the bar, because there is no label above it.
    void resizeEvent(QResizeEvent* event) override;
};
