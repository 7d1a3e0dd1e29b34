#include "support/spooler.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include "support/process.h"
#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kServer = "/usr/sbin/cupsd";
constexpr const char* kPath = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
constexpr double kPatience = 30; // seconds
constexpr auto kTurn = std::chrono::milliseconds(50);

// The spooler's own parts, which its folder of programs refers to.
constexpr const char* kParts[] = {"filter", "daemon", "monitor", "notifier"};

template <typename Condition>
bool WaitUntil(const Condition& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(kPatience);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(kTurn);
    }
    return true;
}

std::string Read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
}

// What stands in the line that begins so.
std::string Line(const std::string& text, const std::string& start) {
    const std::size_t at = text.find(start);
    return at == text.npos
               ? ""
               : text.substr(at + start.size(), text.find('\n', at) - at - start.size());
}

// A server of the superuser runs its filters as somebody else, any other one as its user.
struct Owners {
    std::string user;
    std::string group;
    std::string administrators;
};

Owners OwnersOfServer() {
    if (getuid() == 0) {
        return {"lp", "lp", "root"};
    }
    const passwd* user = getpwuid(getuid());
    const group* own = getgrgid(getgid());
    return {user ? user->pw_name : "nobody", own ? own->gr_name : "nogroup",
            own ? own->gr_name : "nogroup"};
}

constexpr const char* kFiles = R"(SystemGroup @ADMINISTRATORS@
User @USER@
Group @GROUP@
AccessLog @FOLDER@/log/access
ErrorLog @FOLDER@/log/error
PageLog @FOLDER@/log/page
CacheDir @FOLDER@/cache
DataDir /usr/share/cups
DocumentRoot @FOLDER@/etc
RequestRoot @FOLDER@/spool
TempDir @FOLDER@/spool/tmp
ServerBin @FOLDER@/programs
ServerKeychain @FOLDER@/etc
ServerRoot @FOLDER@/etc
StateDir @FOLDER@/state
FatalErrors none
Sandboxing relaxed
)";

constexpr const char* kRules = R"(Listen @FOLDER@/socket
Browsing Off
DefaultShared No
WebInterface No
LogLevel warn
MaxJobs 500
PreserveJobFiles No
DefaultAuthType None
ErrorPolicy retry-job
JobRetryInterval 3
<Location />
  Order allow,deny
  Allow from all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
    Allow from all
  </Limit>
</Policy>
)";

} // namespace

bool PrintJob::Has(const std::string& option) const {
    return (" " + options).find(" " + option + " ") != std::string::npos;
}

std::string Spooler::Missing() {
    std::string missing;
    for (const char* program : {kServer, "/usr/sbin/lpadmin", "/usr/bin/lp", "/usr/bin/lpstat",
                                "/usr/lib/cups/filter/pdftopdf"}) {
        missing += access(program, X_OK) == 0 ? "" : std::string(" ") + program;
    }
    return missing;
}

// The filters' user has to reach the folder.
Spooler::Spooler() {
    std::string pattern = (fs::temp_directory_path() / "spooler-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        throw std::runtime_error("no temporary folder");
    }
    folder_ = pattern;
    fs::permissions(folder_, fs::perms(0755));
    Start();
}

Spooler::~Spooler() {
    End();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::vector<std::string> Spooler::Environment() const {
    return {"CUPS_SERVER=" + Server(), "CUPS_SERVERROOT=" + (folder_ / "etc").string()};
}

void Spooler::WriteSettings() const {
    const Owners owners = OwnersOfServer();
    for (const auto& [name, text] : {std::pair{"files.conf", kFiles}, {"rules.conf", kRules}}) {
        std::string settings = text;
        Replace(settings, "@FOLDER@", folder_.string());
        Replace(settings, "@USER@", owners.user);
        Replace(settings, "@GROUP@", owners.group);
        Replace(settings, "@ADMINISTRATORS@", owners.administrators);
        Write(folder_ / name, settings);
    }
}

void Spooler::Start() {
    End();
    for (const char* part : {"etc", "spool", "cache", "log", "state", "programs", "jobs"}) {
        fs::remove_all(folder_ / part);
    }
    for (const char* part :
         {"etc/ppd", "spool/tmp", "cache", "log", "state/certs", "programs/backend", "jobs"}) {
        fs::create_directories(folder_ / part);
    }
    for (const char* part : kParts) {
        fs::create_symlink(fs::path("/usr/lib/cups") / part, folder_ / "programs" / part);
    }
    fs::copy_file(SourcePath("tests/support/copyjob"), folder_ / "programs/backend/copyjob");
    fs::permissions(folder_ / "programs/backend/copyjob", fs::perms(0755));
    fs::permissions(Kept(), fs::perms(0777));
    WriteSettings();
    if (getuid() == 0) {
        RunProgram("chown", {"-R", "lp:lp", (folder_ / "etc").string(),
                             (folder_ / "spool").string(), (folder_ / "cache").string(),
                             (folder_ / "log").string(), (folder_ / "state").string()});
    }
    server_ = std::make_unique<BackgroundProgram>(
        std::vector<std::string>{kServer, "-f", "-c", (folder_ / "rules.conf").string(), "-s",
                                 (folder_ / "files.conf").string()},
        Environment());
    const bool isUp = WaitUntil([this] {
        ProcessSetting setting{.environment = Environment(), .largestFileBytes = {}, .folder = {}};
        setting.environment.emplace_back("LC_ALL=C");
        return RunProgram("lpstat", {"-r"}, setting).out.find("is running") != std::string::npos;
    });
    if (!isUp) {
        throw std::runtime_error("no spooler came up: " + Read(folder_ / "log/error"));
    }
    Do("lpadmin", {"-p", "plotter", "-E", "-v", "copyjob:" + Kept().string()});
    AddQueue("office", "A4");
    AddQueue("letter", "Letter");
    Do("lpadmin", {"-d", "plotter"});
}

void Spooler::End() {
    server_.reset();
}

void Spooler::AddQueue(const std::string& name, const std::string& paper) const {
    std::string description = Read(SourcePath("tests/support/paper.ppd"));
    Replace(description, "@PAPER@", paper);
    Write(folder_ / "queue.ppd", description);
    Do("lpadmin", {"-p", name, "-E", "-v", "copyjob:" + Kept().string(), "-P",
                   (folder_ / "queue.ppd").string()});
}

void Spooler::Do(const std::string& program, const std::vector<std::string>& arguments) const {
    ProcessSetting setting{.environment = Environment(), .largestFileBytes = {}, .folder = {}};
    setting.environment.emplace_back(kPath);
    const ProcessResult result = RunProgram(program, arguments, setting);
    if (result.status != 0) {
        throw std::runtime_error(program + ": " + result.err);
    }
}

PrintJob Spooler::TakeJob(const std::string& queue) const {
    fs::path data;
    WaitUntil([&] {
        for (const auto& entry : fs::directory_iterator(Kept())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with(queue + "-") && name.ends_with(".data")) {
                data = entry.path();
            }
        }
        return !data.empty();
    });
    if (data.empty()) {
        return {};
    }
    fs::path about = data;
    about.replace_extension(".options");
    const std::string said = Read(about);
    PrintJob job{Read(data), Line(said, "title: "), Line(said, "copies: "),
                 Line(said, "options: ")};
    fs::remove(data);
    fs::remove(about);
    return job;
}

bool Spooler::HasJobs() const {
    return !fs::is_empty(Kept());
}

std::size_t Spooler::Waiting(const std::string& queue) const {
    const ProcessSetting setting{
        .environment = Environment(), .largestFileBytes = {}, .folder = {}};
    const std::string list = RunProgram("lpstat", {"-o", queue}, setting).out;
    return static_cast<std::size_t>(std::count(list.begin(), list.end(), '\n'));
}

} // namespace vernacle::test
