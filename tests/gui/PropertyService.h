// The simulated control service of the stored publisher, and the requests that it receives while the dialog
// saves.
#pragma once

#include "PropertyFixture.h"
#include "Room.h"

#include <mutex>

/// The device of the publisher "X" at the simulated service. Create it after PropertyStage::store().
class PropertyService
{
public:
    static constexpr uint64_t jobList = 4;
    static constexpr uint64_t notifyChange = 16;
    static constexpr uint64_t setPublishMode = 21;

    /// Called on the service's thread with each request, while the client waits for the reply.
    std::function<void(const udsim::Request&)> onRequest = [](const udsim::Request&) {};

    /// Stops the test program if the room cannot be started.
    explicit PropertyService(const char* model = "RT-300III BD")
    {
        std::string error;
        const auto scenario = udsim::Scenario::parse(
            std::string("[publisher Studio]\nid = X\nguid = {X}\nmodel = ") + model + "\n", error);
        if (scenario) {
            m_room = std::make_unique<udsim::Room>(*scenario);
            m_room->onRequest([this](const udsim::Request& request) {
                {
                    const std::lock_guard lock(m_mutex);
                    m_files.push_back(ReadText(Installation::settingFile("X")));
                    m_requests.push_back(request);
                }
                onRequest(request);
            });
        }
        if (!m_room || !m_room->start(error)) {
            qFatal("%s", error.c_str());
        }
    }
    ~PropertyService()
    {
        m_room->stop();
    }
    PropertyService(const PropertyService&) = delete;
    PropertyService& operator=(const PropertyService&) = delete;

    udsim::Room* operator->() const
    {
        return m_room.get();
    }

    /// Replies to requests with this control id with the result code, `times` times (0: always).
    void refuse(uint64_t control, uint64_t times = 0, uint64_t result = 1004)
    {
        udsim::Fault fault;
        fault.kind = udsim::Fault::Kind::result;
        fault.number = result;
        fault.control = control;
        fault.times = times;
        m_room->setFault(fault);
    }

    /// Returns the control ids of the requests since the last call, as "4 16 21 16".
    QString asked()
    {
        const std::lock_guard lock(m_mutex);
        QStringList list;
        for (const udsim::Request& request : m_requests) {
            list << QString::number(request.control);
        }
        m_requests.clear();
        return list.join(" ");
    }

    /// Returns the contents of the publisher's file at each request since the start.
    std::vector<std::string> files()
    {
        const std::lock_guard lock(m_mutex);
        return m_files;
    }

    std::vector<udsim::Request> requests()
    {
        return m_room->requests();
    }

private:
    std::mutex m_mutex;
    std::vector<udsim::Request> m_requests;
    std::vector<std::string> m_files;
    std::unique_ptr<udsim::Room> m_room; ///< declared last: its thread uses the other members
};

/// Replaces the name by typing.
inline void typeName(propertyDialogEx* dialog, const QString& name)
{
    dialog->textPublisherName->setFocus();
    dialog->textPublisherName->selectAll();
    QTest::keyClick(dialog->textPublisherName, Qt::Key_Delete);
    QTest::keyClicks(dialog->textPublisherName, name);
}
