#include "own_display.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumtex::testing {

OwnDisplay::OwnDisplay(int width, int height) {
    std::array<int, 2> numberPipe{};
    if (pipe(numberPipe.data()) != 0)
        throw std::runtime_error("no pipe for the number of the display");
    const std::string screen = std::to_string(width) + "x" + std::to_string(height) + "x24";
    const std::string answer = std::to_string(numberPipe[1]);
    server_ = fork();
    if (server_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM); // also where the tests are killed
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execlp("Xvfb",
               "Xvfb",
               "-displayfd",
               answer.c_str(),
               "-screen",
               "0",
               screen.c_str(),
               "-nolisten",
               "tcp",
               nullptr);
        _exit(EXIT_FAILURE);
    }
    close(numberPipe[1]);
    std::string number;
    char letter = 0;
    while (read(numberPipe[0], &letter, 1) == 1 && letter != '\n')
        number += letter;
    close(numberPipe[0]);
    if (number.empty())
        throw std::runtime_error("Xvfb does not start");
    name_ = ":" + number;
}

OwnDisplay::~OwnDisplay() {
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
}

} // namespace lumtex::testing
