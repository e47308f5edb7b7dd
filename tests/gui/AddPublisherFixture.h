// Fixture for tests of the dialog that registers a network publisher. It starts simulated publisher servers
// that are not registered yet.
#pragma once

#include "Boxes.h"
#include "Installation.h"
#include "Room.h"
#include "addPublisherDialog.h"

#include <QDateTime>
#include <QPushButton>
#include <QTest>

#include <map>
#include <memory>
#include <set>

inline constexpr char sameName[] = "The same name is already registered.\nPlease use a different name.";
inline constexpr char notFound[] =
    "The output device could not be found on the network.\nThere is a possibility that either the host name "
    "or IP address is wrong, or the output device is not connected to the network.";

// The addresses of the simulated servers.
inline constexpr char server[] = "127.0.0.11";
inline constexpr char secondServer[] = "127.0.0.12";
inline constexpr char securityServer[] = "127.0.0.13";
inline constexpr char outputControlServer[] = "127.0.0.14";
inline constexpr char oldServer[] = "127.0.0.15";
inline constexpr char silentAddress[] = "127.0.0.99"; // no server listens here

class AddPublisherFixture : public QObject
{
protected:
    /// For init(): creates a new installation and starts a new room.
    void startAnew()
    {
        m_dialog.reset();
        m_room.reset();
        m_installation = Installation();
        std::string error;
        const auto scenario = udsim::Scenario::parse("[network A]\nmodel = RT-300NII\nregistered = no\n"
                                                     "[network B]\nmodel = RT-300N\nregistered = no\n"
                                                     "[network C]\nmodel = RT-300NII\nregistered = no\n"
                                                     "server-mode = 0\n"
                                                     "[network D]\nmodel = RT-300NII\nregistered = no\n"
                                                     "server-mode = 1\n"
                                                     "[network E]\nmodel = RT-300NII\nregistered = no\n"
                                                     "server-version = 2.10\n",
                                                     error);
        QVERIFY2(scenario, error.c_str());
        m_room = std::make_unique<udsim::Room>(*scenario);
        QVERIFY2(m_room->start(error), error.c_str());
    }

    /// Opens a new dialog and destroys the previous one.
    void open()
    {
        m_dialog.reset();
        m_dialog = std::make_unique<addPublisherDialog>(nullptr);
        m_dialog->setModal(true);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    /// Replaces the text of a field. The text arrives through an input method event, so it may contain any
    /// characters.
    static void enter(QLineEdit* field, const QString& text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(field, &event);
    }
    void enter(const QString& host, const QString& name)
    {
        enter(m_dialog->textHostName, host);
        enter(m_dialog->textPublisherName, name);
    }

    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return m_dialog->buttonBox->button(which);
    }
    /// Presses OK and closes the message box that appears, if any. At most one box is expected. Returns the
    /// text of the box, or an empty string without a box.
    QString ok()
    {
        Boxes boxes({QMessageBox::Ok});
        m_boxParent = nullptr;
        boxes.onBox = [this](QMessageBox& box) { m_boxParent = box.parentWidget(); };
        QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
        m_boxes = boxes.seen();
        return m_boxes.empty() ? QString() : m_boxes[0].text;
    }
    /// Enters both texts, then does the same as ok().
    QString add(const QString& host, const QString& name)
    {
        enter(host, name);
        return ok();
    }
    /// True if the dialog closed with the publisher added and no box appeared.
    bool wasAdded() const
    {
        return m_boxes.empty() && !m_dialog->isVisible() && m_dialog->result() == 1;
    }
    /// True if the dialog showed this warning and is still open with these texts.
    bool wasWarned(const QString& text, const QString& host, const QString& name) const
    {
        return m_boxes.size() == 1 && m_boxes[0].text == text &&
               m_boxes[0].title == "ARVEN Ulmar Disc Setup" && m_boxes[0].icon == QMessageBox::Warning &&
               m_boxes[0].buttons == QMessageBox::Ok && m_boxParent == m_dialog.get() &&
               m_dialog->isVisible() && m_dialog->textHostName->text() == host &&
               m_dialog->textPublisherName->text() == name;
    }

    /// Maps the name of each setting file to its text.
    static std::map<std::string, std::string> files()
    {
        std::map<std::string, std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(PUBLISHER_SETTING_DIR)) {
            found[entry.path().filename().string()] = ReadText(entry.path().string());
        }
        return found;
    }
    /// The name and the text of the one file that is new or changed since `before`. Empty unless it is
    /// exactly one.
    static std::pair<std::string, std::string> newFile(const std::map<std::string, std::string>& before)
    {
        auto now = files();
        std::erase_if(now, [&](const auto& file) {
            const auto known = before.find(file.first);
            return known != before.end() && known->second == file.second;
        });
        return now.size() == 1 ? std::pair<std::string, std::string>(*now.begin())
                               : std::pair<std::string, std::string>();
    }
    /// The contents of a new publisher's file.
    static std::string newText(const std::string& host, const std::string& name)
    {
        return "[Common]\nPublisherName=" + name +
               "\nPrinterName=NotSet\nPublisherConnectionType=1\nPublisherURL=" + host + "\n";
    }
    /// The regist id with this number of today's date in UTC, or of a later day.
    static std::string stem(int number, int daysAhead = 0)
    {
        return QDateTime::currentDateTimeUtc()
                   .addDays(daysAhead)
                   .toString("yyyyMMdd")
                   .toStdString()
                   .insert(0, "{ARPUB") +
               "_" + std::to_string(number) + "}";
    }
    size_t requestsTo(const std::string& host) const
    {
        const auto requests = m_room->httpRequests();
        return static_cast<size_t>(
            std::count_if(requests.begin(), requests.end(),
                          [&](const udsim::HttpRequest& request) { return request.host == host; }));
    }

    Installation m_installation;
    std::unique_ptr<udsim::Room> m_room;
    std::unique_ptr<addPublisherDialog> m_dialog;
    std::vector<SeenBox> m_boxes; // of the last ok()
    QWidget* m_boxParent = nullptr;
};
