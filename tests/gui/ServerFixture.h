// Fixture with the list window, its property dialogs and simulated servers of network publishers.
#pragma once

#include "Boxes.h"
#include "MyRunnable.h"
#include "NW_Com_Lib.h"
#include "PropertyFixture.h"
#include "ServerRoom.h"
#include "Shown.h"

#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Requests in addition to those for the record: when the properties open, and before a name is saved.
inline const QStringList askingForTheMode = connecting + QStringList{"GET /webapp2/ServerModeGetter"};
inline const QStringList askingForJobs =
    connecting + QStringList{"GET /webapp2/JobInfoGetter?ifversion=02000000&type=3"};

class ServerFixture : public QObject
{
protected:
    /// Call it from init().
    static void startAnew()
    {
        SetTextLocale();                                     // as main() does
        QThreadPool::globalInstance()->setMaxThreadCount(4); // independent of the number of CPUs
        const Installation empty;
    }
    /// Call it from cleanup().
    void tidyUp()
    {
        QVERIFY(!QApplication::activeModalWidget());
        if (m_room) {
            (*m_room)->stop(); // so that no query waits for a stalled server
        }
        m_window.reset();
        QVERIFY(waitForTasks(10000));
        m_room.reset();
    }

    void startRoom(const std::string& scenario)
    {
        m_room.emplace(scenario);
    }

    /// Opens the list and waits for its first queries. Its timer is stopped, so it sends no queries by
    /// itself.
    void openList()
    {
        m_window = std::make_unique<PubSetup>(nullptr);
        m_window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).at(0)->stop();
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(waitForTasks(10000));
        QCoreApplication::processEvents();
        m_room->forget();
    }

    /// Double-clicks the publisher "N" and calls `look` with the dialog that opens. `boxTexts` are the
    /// expected texts of the message boxes before the dialog and after its buttons are pressed.
    void openFromTheList(const std::function<void(propertyDialogEx&)>& look, const QStringList& boxTexts = {})
    {
        openList();
        QTreeWidget* tree = m_window->treePublisherList;
        const QPoint place = tree->visualItemRect(m_window->findItemByPublisherRegistID("N")).center();
        const Boxes boxes(std::vector<QMessageBox::StandardButton>(size_t(boxTexts.size()), QMessageBox::Ok));
        const WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
            look(shown);
            if (shown.isVisible()) {
                shown.reject();
            }
        });
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
        QTRY_VERIFY(dialog.seen());
        QStringList seen;
        for (const SeenBox& box : boxes.seen()) {
            seen << box.text;
        }
        QCOMPARE(seen, boxTexts);
    }

    /// Ends all connections. A server in a secure mode leaves one open whose handle is never returned.
    static void endConnectionsLeftBehind()
    {
        constexpr DWORD mostConnections = 100;
        for (DWORD handle = 1; handle <= mostConnections; ++handle) {
            EndConnection(handle);
        }
    }

    QString nameInTheList(const char* key = "N") const
    {
        return m_window->findItemByPublisherRegistID(key)->text(0);
    }

    static std::string file(const char* id = "N")
    {
        return ReadText(Installation::settingFile(id));
    }

    std::optional<ServerRoom> m_room;
    std::unique_ptr<PubSetup> m_window;
};
