// A label for a text from a device or a file, which may be of any length and hold any character.
#pragma once

#include <QLabel>

/// One line, whatever the text holds. A text that does not fit ends in an ellipsis, and its tool tip tells
/// the rest; the label asks for 40 characters at most, so that no device can make a window wider than the
/// screen.
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
