// The program as a process: a second start while the first one runs is refused.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "shelltest.h"

namespace {

pid_t startProgram() {
    const pid_t pid = fork();
    if (pid == 0) {
        execl(EVIDA_EXECUTABLE, EVIDA_EXECUTABLE, static_cast<char*>(nullptr));
        _exit(127);
    }
    return pid;
}

using ProgramStart = ShellTest;

TEST_F(ProgramStart, SecondStartWhileTheFirstRunsIsRefused) {
    addCompany("evida1.db", "Alfa", "1");
    wxSetEnv("EVIDA_PROMPTS", "stderr");
    const pid_t first = startProgram();
    ASSERT_GT(first, 0);
    // The first program holds its company file locked once it is up.
    bool up = false;
    for (int i = 0; i < 200 && !up; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        up = wxFileName::FileExists(m_home + "/evida") && waitpid(first, nullptr, WNOHANG) == 0;
    }
    ASSERT_TRUE(up);

    const std::string command = std::string(EVIDA_EXECUTABLE) + " 2>&1";
    FILE* second = popen(command.c_str(), "r");
    ASSERT_NE(second, nullptr);
    std::string output;
    char buffer[256];
    while (std::fgets(buffer, sizeof buffer, second)) output += buffer;
    const int status = pclose(second);
    EXPECT_NE(output.find("Evida už běží"), std::string::npos) << output;
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != 0);
    EXPECT_EQ(waitpid(first, nullptr, WNOHANG), 0);  // the first one still runs

    kill(first, SIGTERM);
    waitpid(first, nullptr, 0);
    wxUnsetEnv("EVIDA_PROMPTS");
}

}  // namespace
