// The line in the middle of a list that has no rows.
#pragma once

#include <QLabel>

class QTreeWidget;

/// Lies over the list, which owns it, while the list has no rows: grey, and without taking clicks. The text
/// is the list's accessible description meanwhile, because a screen reader does not reach the label.
class EmptyListNote : public QLabel
{
    Q_OBJECT

public:
    EmptyListNote(const QString& text, QTreeWidget* list);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeColours();
    void follow();

    /// Null while the list is being destroyed, when its model still sends signals.
    QTreeWidget* list() const;

    QString m_description; // of the list that has rows
};
