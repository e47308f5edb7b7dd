// The text in the middle of a list that has no rows.
#pragma once

#include <QLabel>

class QTreeWidget;

/// Covers the list, which owns it, while the list has no rows. It is grey and ignores clicks. Meanwhile the
/// text is also the list's accessible description, because a screen reader does not reach the label.
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

    /// Null while the list is being destroyed: its model still emits signals then.
    QTreeWidget* list() const;

    QString m_description; // of the list while it has rows
};
