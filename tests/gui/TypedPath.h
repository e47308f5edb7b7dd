// Types a path into Qt's file dialog, as a user does.
#pragma once

#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

/// Types over what the name field holds, and returns the field. The dialog must be visible.
inline QLineEdit* typePath(QFileDialog& dialog, const QString& path)
{
    auto field = dialog.findChild<QLineEdit*>("fileNameEdit");
    field->setFocus();
    // A field without the focus is overwritten by the selection in the list, which follows each letter.
    if (!QTest::qWaitFor([field] { return field->hasFocus(); })) {
        QTest::qFail("the name field did not get the focus", __FILE__, __LINE__);
    }
    field->selectAll();
    QTest::keyClicks(field, path);
    return field;
}
