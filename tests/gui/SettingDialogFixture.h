// Fixture with the dialog of the common settings, in an installation whose job folder is a real directory.
#pragma once

#include "Installation.h"
#include "settingDialog.h"

#include <QDir>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>

inline const std::string job = "/opt/arven/Ulmar Disc Maker/JOB";

class SettingDialogFixture : public QObject
{
protected:
    /// Call it from init(). Creates a fresh installation, and two folders to choose.
    void startAnew()
    {
        m_dialog.reset();
        // Qt's file dialog treats the parents of the current folder differently, and the tests use folders in
        // /tmp.
        QDir::setCurrent("/");
        m_installation = Installation();
        std::filesystem::create_directory(job);
        for (const char* folder : {"/tmp/a", "/tmp/b"}) {
            std::filesystem::remove_all(folder);
            std::filesystem::create_directory(folder);
        }
    }

    /// Opens a new dialog in place of the current one.
    void open()
    {
        m_dialog = std::make_unique<settingDialogEx>(nullptr);
        m_dialog->setModal(true);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    /// Replaces the text of the folder field, as pasting does.
    void typeFolder(const QString& folder)
    {
        m_dialog->textWorkingFolder->selectAll();
        QTest::keyClick(m_dialog->textWorkingFolder, Qt::Key_Delete);
        m_dialog->textWorkingFolder->insert(folder);
    }

    /// Clicks a check box or radio button on this tab.
    void tick(int tab, QAbstractButton* choice)
    {
        m_dialog->settingTab->setCurrentIndex(tab);
        QTest::mouseClick(choice, Qt::LeftButton, {}, QPoint(8, choice->height() / 2));
    }

    /// Runs the dialog and calls `script` in it. Returns the result of the dialog, -1 if the script leaves it
    /// open.
    int run(std::function<void()> script)
    {
        QTimer::singleShot(0, m_dialog.get(), [this, script] {
            script();
            if (m_dialog->isVisible()) {
                m_dialog->done(-1);
            }
        });
        return m_dialog->exec();
    }

    Installation m_installation;
    std::unique_ptr<settingDialogEx> m_dialog;
};
