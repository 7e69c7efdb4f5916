/// \file
/// A server of PostgreSQL for the time of some tests.
#pragma once

#include <filesystem>
#include <string>

#include <sys/types.h>

namespace lumtex::testing {

/// Made in a temporary folder and reached on the loopback address, at a port of its own, so that servers do
/// not meet. The server refuses to run as root: it then runs as the user postgres, or nobody. It ends with
/// the object, and with the test program, however that ends. Throws std::runtime_error where it cannot be
/// started.
class PostgresServer {
  public:
    PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;
    ~PostgresServer();

    /// For the one user and the one database there are.
    std::string address() const;
    /// Runs statements on a connection of their own; the first value of the last result, "" without one.
    std::string run(const std::string& statements) const;
    /// Ends it at once, connections and all.
    void stop();

  private:
    pid_t launch(const std::string& program, const std::initializer_list<std::string>& arguments) const;
    void end(int signal);
    /// At a free port. No process is left where another server took the port in the meantime.
    void start();
    void waitUntilReady();

    std::filesystem::path folder_;
    int port_ = 0;
    pid_t process_ = -1;
};

} // namespace lumtex::testing
