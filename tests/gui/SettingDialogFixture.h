// The common settings on the screen, in an installation whose jobs lie in a folder of their own.
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
    /// For init(): an installation as it was installed, and two folders to choose.
    void startAnew()
    {
        m_dialog.reset();
        // Qt's file dialog treats the folders above the current one differently, and those used here lie in
        // /tmp.
        QDir::setCurrent("/");
        m_installation = Installation();
        std::filesystem::create_directory(job);
        for (const char* folder : {"/tmp/a", "/tmp/b"}) {
            std::filesystem::remove_all(folder);
            std::filesystem::create_directory(folder);
        }
    }

    /// Another dialog in the place of the one that is open.
    void open()
    {
        m_dialog = std::make_unique<settingDialogEx>(nullptr);
        m_dialog->setModal(true);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    /// As pasting does.
    void typeFolder(const QString& folder)
    {
        m_dialog->textWorkingFolder->selectAll();
        QTest::keyClick(m_dialog->textWorkingFolder, Qt::Key_Delete);
        m_dialog->textWorkingFolder->insert(folder);
    }

    /// A click on a tab's check box or radio button.
    void tick(int tab, QAbstractButton* choice)
    {
        m_dialog->settingTab->setCurrentIndex(tab);
        QTest::mouseClick(choice, Qt::LeftButton, {}, QPoint(8, choice->height() / 2));
    }

    /// The result of the dialog in which `script` acts; -1 when the script leaves it open.
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
