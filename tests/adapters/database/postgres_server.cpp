#include "postgres_server.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <libpq-fe.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumtex::testing {

namespace {

namespace fs = std::filesystem;

/// Where the packages put a server's programs, the newest version of those installed.
fs::path programs() {
    fs::path newest;
    int highest = 0;
    std::error_code none;
    for (const fs::directory_entry& entry : fs::directory_iterator("/usr/lib/postgresql", none)) {
        const int version = std::atoi(entry.path().filename().c_str());
        if (version > highest && fs::exists(entry.path() / "bin" / "postgres")) {
            highest = version;
            newest = entry.path() / "bin";
        }
    }
    if (newest.empty())
        throw std::runtime_error("there is no PostgreSQL server below /usr/lib/postgresql");
    return newest;
}

/// A port of the loopback address that nobody listens on just now.
int freePort() {
    const int probe = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof place;
    auto* const address = reinterpret_cast<sockaddr*>(&place);
    const bool found =
        probe >= 0 && bind(probe, address, size) == 0 && getsockname(probe, address, &size) == 0;
    close(probe);
    if (!found)
        throw std::runtime_error("no port on the loopback address");
    return ntohs(place.sin_port);
}

const passwd* substituteForRoot() {
    const passwd* user = getpwnam("postgres");
    return user != nullptr ? user : getpwnam("nobody");
}

} // namespace

PostgresServer::PostgresServer() {
    std::string name = (fs::temp_directory_path() / "lumtex-pg-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no folder " + name);
    folder_ = name;
    try {
        if (geteuid() == 0) {
            const passwd* const user = substituteForRoot();
            if (user == nullptr || chown(name.c_str(), user->pw_uid, user->pw_gid) != 0)
                throw std::runtime_error("no user to run a server as");
        }
        int status = 0;
        const pid_t maker = launch("initdb",
                                   {"--pgdata=" + name + "/data",
                                    "--auth=trust",
                                    "--username=lumtex",
                                    "--encoding=UTF8",
                                    "--locale=C",
                                    "--no-sync"});
        if (waitpid(maker, &status, 0) != maker || status != 0)
            throw std::runtime_error("initdb failed");
        // Somebody else may take the port between the look and the start; then it is another one's turn.
        constexpr int tries = 10;
        for (int i = 0; process_ <= 0 && i < tries; ++i)
            start();
        if (process_ <= 0)
            throw std::runtime_error("the server ended at once");
    } catch (const std::exception& failure) {
        std::ifstream log(folder_ / "log");
        const std::string said{std::istreambuf_iterator<char>(log), {}};
        end(SIGQUIT);
        fs::remove_all(folder_);
        throw std::runtime_error(failure.what() + std::string("\n") + said);
    }
}

void PostgresServer::start() {
    port_ = freePort();
    process_ = launch("postgres",
                      {"-D",
                       (folder_ / "data").string(),
                       "-p",
                       std::to_string(port_),
                       "-c",
                       "listen_addresses=127.0.0.1",
                       "-c",
                       "unix_socket_directories=" + folder_.string(),
                       "-c",
                       "fsync=off"});
    waitUntilReady();
}

PostgresServer::~PostgresServer() {
    end(SIGINT);
    std::error_code failure;
    fs::remove_all(folder_, failure);
}

std::string PostgresServer::address() const {
    return "postgresql://lumtex@127.0.0.1:" + std::to_string(port_) + "/postgres";
}

std::string PostgresServer::run(const std::string& statements) const {
    const std::unique_ptr<PGconn, decltype(&PQfinish)> connection(PQconnectdb(address().c_str()), PQfinish);
    const std::unique_ptr<PGresult, decltype(&PQclear)> result(PQexec(connection.get(), statements.c_str()),
                                                               PQclear);
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw std::runtime_error(PQerrorMessage(connection.get()));
    return PQntuples(result.get()) > 0 ? PQgetvalue(result.get(), 0, 0) : "";
}

void PostgresServer::stop() {
    end(SIGQUIT);
}

pid_t PostgresServer::launch(const std::string& program,
                             const std::initializer_list<std::string>& arguments) const {
    const std::string file = (programs() / program).string();
    const std::string log = (folder_ / "log").string();
    std::vector<char*> words{const_cast<char*>(file.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const passwd* const user = geteuid() == 0 ? substituteForRoot() : nullptr;
    const pid_t parent = getpid();

    const pid_t child = fork();
    if (child != 0)
        return child;
    // A new session, so that a signal from the keyboard reaches the tests alone.
    setsid();
    const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    if (user != nullptr &&
        (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0))
        _exit(126);
    // Changing the user would have forgotten this.
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    if (getppid() != parent || chdir("/") != 0)
        _exit(125);
    execv(file.c_str(), words.data());
    _exit(127);
}

void PostgresServer::end(int signal) {
    if (process_ <= 0)
        return;
    kill(process_, signal);
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
}

void PostgresServer::waitUntilReady() {
    using namespace std::chrono_literals;
    // The server tells nobody when it is ready, so it is asked: by its own folder, since at its port another
    // one may answer while this one finds the port taken.
    const std::string own =
        "host='" + folder_.string() + "' port=" + std::to_string(port_) + " user=lumtex dbname=postgres";
    for (int i = 0; i < 3000; ++i) {
        int status = 0;
        if (waitpid(process_, &status, WNOHANG) == process_) {
            process_ = -1;
            return;
        }
        if (PQping(own.c_str()) == PQPING_OK)
            return;
        std::this_thread::sleep_for(20ms);
    }
    throw std::runtime_error("the server does not answer");
}

} // namespace lumtex::testing
