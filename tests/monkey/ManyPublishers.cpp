#include "ManyPublishers.h"

#include "PublisherFiles.h"

#include <QTest>

#include <array>
#include <cstddef>
#include <filesystem>

namespace {

constexpr unsigned locals = publisherCount / 2;
constexpr unsigned firstHost = 11;
constexpr uint64_t faultyRequests = 3;

bool isLocal(unsigned publisher)
{
    return publisher < locals;
}

std::string scenario()
{
    constexpr std::array<const char*, 5> localModels{"RT-300III DVD", "RT-300III BD", "RT-300III BDXL",
                                                     "RT-30II", "RT-30II BDXL"};
    constexpr std::array<const char*, 2> serverModels{"RT-300NII", "RT-300NII BD-XL"};
    std::string text;
    for (unsigned i = 0; i < publisherCount; ++i) {
        const std::string id = publisherID(i);
        text += (isLocal(i) ? "[publisher " : "[network ") + id + "]\nid = " + id + "\nmodel = ";
        text +=
            isLocal(i) ? localModels.at(i % localModels.size()) : serverModels.at(i % serverModels.size());
        text += isLocal(i) ? "\nguid = {" + id + "}" : "\nhost = " + ManyPublishers::host(i);
        text += "\nregistered = no\njobs = " + std::to_string(i % 3 == 0 ? 2 : 0) + "\n";
    }
    return text;
}

std::string settingFile(unsigned publisher)
{
    const std::string id = publisherID(publisher);
    const std::string kind = isLocal(publisher)
                                 ? "GUID={" + id + "}\nPublishMode=0\nPublisherConnectionType=0\n"
                                 : "PublisherURL=" + ManyPublishers::host(publisher) +
                                       "\nNPType=" + std::to_string(2 + publisher % 2) +
                                       "\nPublisherConnectionType=1\n";
    return "[Common]\nPublisherName=" + id + "\n" + kind;
}

} // namespace

ManyPublishers::ManyPublishers()
{
    std::string error;
    const auto parsed = udsim::Scenario::parse(scenario(), error);
    if (parsed) {
        m_room = std::make_unique<udsim::Room>(*parsed);
        m_room->onRequest([this](const udsim::Request&) { ++m_requests; });
        m_room->onHttpRequest([this](const udsim::HttpRequest&) { ++m_requests; });
    }
    if (!m_room || !m_room->start(error)) {
        qFatal("%s", error.c_str());
    }
    MakePublisherFolder();
    for (unsigned i = 0; i < publisherCount; ++i) {
        comes(i);
    }
}

ManyPublishers::~ManyPublishers()
{
    m_room->stop();
}

void ManyPublishers::comes(unsigned publisher)
{
    const std::string file = PublisherFile(publisherID(publisher));
    if (!std::filesystem::exists(file)) {
        m_room->tell(publisherID(publisher), "online");
        const std::string unfinished = std::string(CONF_DIR) + "/unfinished";
        WriteText(unfinished, settingFile(publisher));
        std::filesystem::rename(unfinished, file);
    }
}

void ManyPublishers::goes(unsigned publisher)
{
    std::filesystem::remove(PublisherFile(publisherID(publisher)));
}

void ManyPublishers::strangersGo()
{
    for (const QString& id : registered()) {
        if (id.startsWith('{')) {
            std::filesystem::remove(PublisherFile(id.toStdString()));
        }
    }
}

void ManyPublishers::device(unsigned publisher, unsigned number)
{
    constexpr std::array<const char*, 7> ofMachines{"offline", "online", "online",        "error 19",
                                                    "clear",   "refill", "add-job Monkey"};
    constexpr std::array<const char*, 3> ofServers{"server off", "server on", "server on"};
    constexpr std::array<const char*, 3> ofTheService{"service off", "service on", "service on"};
    const unsigned which = number / publisherCount; // the remainder selects the publisher of a step
    const size_t choice = which / 4;
    if (which % 4 != 0) {
        m_room->tell(publisherID(publisher), ofMachines.at(choice % ofMachines.size()));
    } else if (isLocal(publisher)) {
        m_room->tell("", ofTheService.at(choice % ofTheService.size()));
    } else {
        m_room->tell(publisherID(publisher), ofServers.at(choice % ofServers.size()));
    }
}

void ManyPublishers::fault(unsigned publisher, unsigned number)
{
    constexpr std::array<const char*, 4> faults{"close", "delay 200", "result 1001", "close"};
    constexpr std::array<const char*, 4> networkFaults{"close", "delay 200", "status 2", "http 500"};
    if (number % 5 == 0) {
        m_room->clearFaults();
        return;
    }
    std::string error;
    const auto set = [&](auto fault) {
        if (!fault) {
            qFatal("%s", error.c_str());
        }
        fault->publisher = publisherID(publisher);
        fault->times = faultyRequests;
        m_room->setFault(*fault);
    };
    if (isLocal(publisher)) {
        set(udsim::Fault::parse(faults.at(number % faults.size()), error));
    } else {
        set(udsim::HttpFault::parse(networkFaults.at(number % networkFaults.size()), error));
    }
}

void ManyPublishers::advance(unsigned seconds)
{
    m_room->advance(uint64_t{1000} * seconds);
}

void ManyPublishers::serveUntil(int requests, int milliseconds) const
{
    [[maybe_unused]] const bool arrived =
        QTest::qWaitFor([&] { return m_requests >= requests; }, milliseconds);
}

std::set<QString> ManyPublishers::registered()
{
    std::set<QString> ids;
    for (const auto& entry : std::filesystem::directory_iterator(PUBLISHER_SETTING_DIR)) {
        if (entry.path().extension() == ".ini") {
            ids.insert(QString::fromStdString(entry.path().stem().string()));
        }
    }
    return ids;
}

std::string ManyPublishers::host(unsigned publisher)
{
    return "127.0.0." + std::to_string(firstHost + publisher % locals);
}
