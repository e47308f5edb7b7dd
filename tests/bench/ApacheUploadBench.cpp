// Uploads a disc image of 400 MiB to Apache with mod_dav, which writes it to a file, compared with curl
// sending the same ranges.
#include "ImageUpload.h"
#include "Stopwatch.h"

#include <filesystem>

namespace {

constexpr uint16_t PORT = 8090;
constexpr char FOLDER[] = "/tmp/apache/";

/// Apache, running as an ordinary user in its own namespace, because it refuses to run as root.
class Apache
{
public:
    Apache()
    {
        const std::string root = FOLDER;
        std::filesystem::create_directories(root + "www/uploads/000004d2");
        std::filesystem::create_directories(root + "www/webapp2");
        std::ofstream(root + "www/webapp2/FileHashSetter") << '\n'; // answers any request
        std::ofstream config(root + "conf");
        for (const char* module : {"mpm_event", "authz_core", "dav", "dav_fs"}) {
            config << "LoadModule " << module << "_module /usr/lib/apache2/modules/mod_" << module << ".so\n";
        }
        config << "ServerRoot " << root << "\nServerName localhost\nListen 127.0.0.1:" << PORT << "\nPidFile "
               << root << "pid\nErrorLog " << root << "log\nDocumentRoot " << root << "www\nDavLockDB "
               << root << "lock\nMaxKeepAliveRequests 0\n<Directory " << root
               << "www/uploads>\nDav On\n</Directory>\n";
        config.close();
        m_process = Start({"unshare", "--user", "--map-user=1000", "--map-group=1000", "apache2", "-f",
                           root + "conf", "-D", "FOREGROUND"});
        while (!IsListening()) {
            Check(waitpid(m_process, nullptr, WNOHANG) == 0, "apache2");
            poll(nullptr, 0, 20);
        }
    }
    Apache(const Apache&) = delete;
    Apache& operator=(const Apache&) = delete;
    ~Apache()
    {
        kill(m_process, SIGTERM);
        waitpid(m_process, nullptr, 0);
    }

private:
    static bool IsListening()
    {
        CSocket socket;
        return socket.Open(AF_INET, SOCK_STREAM) == 0 && socket.Connect("127.0.0.1", PORT, 1000) == 0;
    }

    pid_t m_process = -1;
};

} // namespace

int main()
{
    if (!std::filesystem::exists("/usr/sbin/apache2")) {
        std::puts("not run: apache2 is missing (Debian package apache2-bin)");
        return 0;
    }
    const Apache server;
    const ImageUpload upload("http://127.0.0.1:" + std::to_string(PORT) + "/uploads/000004d2/Image",
                             ULONGLONG{400} * MIB, 40 * MIB);
    const DWORD handle = OpenHandle(PORT);
    GetNCLObj(handle)->m_nServerJobID = JOB_ID;
    PrintRatioGoal(
        "upload of 400 MiB to Apache mod_dav, vs curl",
        Compare("A disc image of 400 MiB to Apache with mod_dav",
                {{"SendDiscImage, pieces of 40 MiB", [&] { upload.SendWithLibrary(handle); }, {}},
                 {"curl, same ranges, digest in a second thread", [&] { upload.SendWithCurl(); }, {}}},
                15),
        1.1);
    return 0;
}
