// Types a path into Qt's file dialog, as a user does.
#pragma once

#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

/// Replaces the text of the name field by typing, and returns the field. The dialog must be visible.
inline QLineEdit* typePath(QFileDialog& dialog, const QString& path)
{
    auto field = dialog.findChild<QLineEdit*>("fileNameEdit");
    field->setFocus();
    // Without the focus, the field is overwritten by the selection in the list, which follows each typed
    // letter.
    if (!QTest::qWaitFor([field] { return field->hasFocus(); })) {
        QTest::qFail("the name field did not get the focus", __FILE__, __LINE__);
    }
    field->selectAll();
    QTest::keyClicks(field, path);
    return field;
}
