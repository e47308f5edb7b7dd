// A label for a text from a device or a file, which may have any length and contain any character.
#pragma once

#include <QLabel>

/// Always shows one line. A text that does not fit ends in an ellipsis, and the tool tip shows all of it. The
/// size hint is at most 40 characters, so that no device can make a window wider than the screen.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    QString line() const;
    bool isElided() const;
};
