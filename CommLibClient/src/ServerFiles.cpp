// Every connection searches the setting files for the address of its server. Their contents are cached, so
// that the cost of a search does not depend on their number.
//
// A cache entry is used only while it is current, so that the next search sees every change. Each search
// compares the identity, size and times of the folder and of the files found. However, any other file may
// have been rewritten in place, so that it now names the server and comes first. Comparing the times of 1000
// files takes 1 ms, and a poll searches six times, so the changes of the other files are taken from the
// reports of the kernel.
//
// Reports are trusted only where they are complete: on local file systems, for files that are not links and
// have one name. All other files are compared each time, and so is every file where the kernel reports
// nothing. A file that changed so recently that its times may not show a further change is read each time,
// unless its changes are reported. Changes that FolderWatch does not report are seen when something else
// changes. Setting files are not written in these ways. The consequence would be a kind stored in a later
// file that names the same server.
#include "ServerFiles.h"

#include "FileStamp.h"
#include "FolderWatch.h"
#include "InstallPaths.h"
#include "NW_Com_LibConst.h"
#include "ProfileText.h"
#include "PubMgrConst.h"
#include "SystemCalls.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <utility>

#include <dirent.h>

namespace {

/// The current identity, size and times of the file or folder at a path.
struct State
{
    FileStamp stamp;
    bool isSettled = false; ///< a later change results in a different stamp
    bool hasOneName = false;
};

std::optional<State> StateOf(const char* path)
{
    timespec now = {};
    struct stat info = {};
    if (clock_gettime(CLOCK_REALTIME_COARSE, &now) != 0 || stat(path, &info) != 0) {
        return std::nullopt;
    }
    const FileStamp stamp(info);
    return State{stamp, stamp.IsSettled(now), info.st_nlink == 1};
}

/// Whether opening a file fails again until the file changes. Other errors may pass, for example those of a
/// network file system or a lack of descriptors.
bool LastsUntilAChange(int error)
{
    return error == EACCES || error == EPERM;
}

struct KnownFile
{
    std::string path;
    unsigned char type = DT_UNKNOWN; ///< from the list of the folder
    std::optional<State> state;      ///< when the file was read; none: it must be read
    bool isReported = false;         ///< every change is reported
    std::string address;             ///< empty: it names no server
    unsigned int kind = 0;
};

/// The setting files and their cached contents. The caller holds a lock.
class SettingFolder
{
public:
    std::vector<ServerFile> FilesOf(const std::string& address)
    {
        std::vector<ServerFile> found;
        if (!Update()) {
            return found;
        }
        const auto places = m_byAddress.find(address);
        if (places == m_byAddress.end()) {
            return found;
        }
        for (const size_t place : places->second) {
            KnownFile& file = m_files[place];
            UpdateFile(file);
            if (file.address != address) { // it has just been changed: search again
                IndexAddresses();
                return FilesOf(address);
            }
            found.push_back({file.path, file.kind});
        }
        return found;
    }

private:
    /// Updates the list, the files with reported changes, and the files whose changes are not reported.
    /// False if there is no folder.
    bool Update()
    {
        const std::optional<State> folder = StateOf(PUBLISHER_SETTING_DIR);
        if (!folder) {
            m_folder.reset();
            return false;
        }
        bool isSame = m_folder && m_folder->stamp == folder->stamp;
        if (m_watch.IsActive()) {
            isSame = m_watch.Report([this](std::string_view name) { ReadAgain(name); }) && isSame;
        } else {
            isSame = isSame && m_folder->isSettled;
        }
        if (!isSame && !List(*folder)) {
            return false;
        }
        bool isAddressChanged = !isSame;
        for (const size_t place : std::exchange(m_changed, {})) {
            KnownFile& file = m_files[place];
            isAddressChanged = UpdateFile(file) || isAddressChanged;
            if (file.isReported && !AreChangesReported(file)) { // it has a second name now
                file.isReported = false;
                m_unreported.push_back(place);
            }
        }
        for (const size_t place : m_unreported) {
            isAddressChanged = UpdateFile(m_files[place]) || isAddressChanged;
        }
        if (isAddressChanged) {
            IndexAddresses();
        }
        return true;
    }

    /// Lists the files again, and keeps the cached contents of those whose stamps are unchanged.
    bool List(const State& folder)
    {
        m_folder.reset();
        m_watch.Start(PUBLISHER_SETTING_DIR); // before the list is read, so that no change is missed
        const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(PUBLISHER_SETTING_DIR), closedir);
        if (directory == nullptr) {
            return false;
        }
        std::unordered_map<std::string, KnownFile> known;
        for (KnownFile& file : m_files) {
            std::string path = file.path;
            known.try_emplace(std::move(path), std::move(file));
        }
        m_files.clear();
        m_byName.clear();
        m_changed.clear();
        const auto next = [&directory] {
            errno = 0;
            return readdir(directory.get());
        };
        while (const dirent* entry = next()) {
            std::string path = std::string(PUBLISHER_SETTING_DIR) + "/" + entry->d_name;
            // The programs of the suite do not support a longer path, so it names no publisher.
            if (entry->d_name[0] == '.' || path.size() >= size_t{MAX_PATH}) {
                continue;
            }
            const auto old = known.find(path);
            KnownFile file;
            if (old != known.end()) {
                file = std::move(old->second);
            }
            file.path = std::move(path);
            file.type = entry->d_type;
            file.isReported = false; // reports may have been lost
            m_files.push_back(std::move(file));
            m_byName.emplace(entry->d_name, m_files.size() - 1);
        }
        const bool isComplete = errno == 0;
        m_unreported.clear();
        for (size_t place = 0; place < m_files.size(); ++place) {
            UpdateFile(m_files[place]);
            m_files[place].isReported = AreChangesReported(m_files[place]);
            if (!m_files[place].isReported) {
                m_unreported.push_back(place);
            }
        }
        if (isComplete) { // otherwise the next search lists the files again
            m_folder = folder;
        }
        return true;
    }

    bool AreChangesReported(const KnownFile& file) const
    {
        return m_watch.IsActive() &&
               (file.type == DT_DIR || (file.type == DT_REG && file.state && file.state->hasOneName));
    }

    void ReadAgain(std::string_view name)
    {
        const auto place = m_byName.find(std::string(name));
        if (place != m_byName.end()) {
            m_files[place->second].state.reset();
            m_changed.push_back(place->second);
        }
    }

    /// Reads the file unless its cached contents are current. True if its address changed.
    bool UpdateFile(KnownFile& file)
    {
        const std::optional<State> now = StateOf(file.path.c_str()); // before reading, to miss no change
        const bool isCurrent = now && file.state && file.state->stamp == now->stamp &&
                               (file.state->isSettled || file.isReported);
        if (isCurrent) {
            return false;
        }
        const ErrnoKeeper keeper; // an ERANGE of a kind would make the next Content-Length fail
        const std::string before = std::exchange(file.address, "");
        file.kind = NCL_NPTYPE_UNKNOWN;
        file.state.reset();
        const auto text = ProfileText::Read(file.path.c_str());
        if (text == nullptr ? !LastsUntilAChange(errno) : !text->IsComplete()) {
            return file.address != before; // the next search reads it again
        }
        file.state = now;
        if (text != nullptr) {
            file.address = text->Value(REG_PUB_SETUP_SECTION_COMMON, REG_PUB_SETUP_VAL_HOST, 259);
            // Reading ignores the case of section names.
            const std::string kind = text->Value(REG_PUB_SETUP_SECTION_COMMON, REG_PUB_SETUP_VAL_NPTYPE, 31);
            const auto number = static_cast<unsigned int>(std::atoi(kind.c_str())); // negative: unknown
            file.kind = number <= NCL_NPTYPE_300NII_BDXL ? number : NCL_NPTYPE_UNKNOWN;
        }
        return file.address != before;
    }

    void IndexAddresses()
    {
        m_byAddress.clear();
        for (size_t place = 0; place < m_files.size(); ++place) {
            if (!m_files[place].address.empty()) {
                m_byAddress[m_files[place].address].push_back(place);
            }
        }
    }

    FolderWatch m_watch;
    std::optional<State> m_folder;  // when it was listed; none: it must be listed
    std::vector<KnownFile> m_files; // in the order of the list
    std::vector<size_t> m_unreported;
    std::vector<size_t> m_changed; // to be read again
    std::unordered_map<std::string, size_t> m_byName;
    std::unordered_map<std::string, std::vector<size_t>> m_byAddress;
};

} // namespace

std::vector<ServerFile> FilesOfServer(const std::string& address)
{
    // Never destroyed: a thread that still runs at process exit may use them.
    static auto& guard = *new std::mutex;
    static auto& folder = *new std::optional<SettingFolder>;
    const std::lock_guard lock(guard);
    if (!folder) {
        folder.emplace();
    }
    try {
        return folder->FilesOf(address);
    } catch (const std::bad_alloc&) {
        folder.reset(); // it may be half updated
        throw;          // house-rule: exceptions: StartConnection turns it into a result code
    }
}
