// A real HTTP file server on loopback for download tests: Python's http.server serving a
// directory, started on a free port and stopped with the object. A test that needs another
// answer to its requests gives its own Python program, run with the directory as its argument;
// it must print the same first line as http.server ("Serving HTTP on ... port N ...").
#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/string.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

class LoopbackHttpServer {
 public:
    explicit LoopbackHttpServer(const wxString& directory, const char* script = nullptr) {
        int out[2];
        if (pipe(out) != 0) return;
        m_pid = fork();
        if (m_pid == 0) {
            dup2(out[1], STDOUT_FILENO);
            const int quiet = open("/dev/null", O_WRONLY);  // the request log
            if (quiet >= 0) dup2(quiet, STDERR_FILENO);
            close(out[0]);
            close(out[1]);
            const std::string dir(directory.utf8_str());
            const char* python = access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3" : "python3";
            if (script) {
                execlp(python, python, "-u", "-c", script, dir.c_str(), static_cast<char*>(nullptr));
            } else {
                execlp(python, python, "-u", "-m", "http.server", "0", "--bind", "127.0.0.1", "--directory",
                       dir.c_str(), static_cast<char*>(nullptr));
            }
            _exit(127);
        }
        close(out[1]);
        // "Serving HTTP on 127.0.0.1 port 40123 (http://127.0.0.1:40123/) ..."
        FILE* in = fdopen(out[0], "r");
        char line[256] = {};
        if (in && std::fgets(line, sizeof line, in)) {
            const char* port = std::strstr(line, "port ");
            if (port) m_port = std::atoi(port + 5);
        }
        if (in) std::fclose(in);
    }
    ~LoopbackHttpServer() {
        if (m_pid > 0) {
            kill(m_pid, SIGTERM);
            waitpid(m_pid, nullptr, 0);
        }
    }
    bool running() const { return m_port > 0; }
    wxString url() const { return wxString::Format("http://127.0.0.1:%d", m_port); }

 private:
    pid_t m_pid = -1;
    int m_port = 0;
};
