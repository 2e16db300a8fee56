// A real SMTP server on loopback for the e-mail tests: tests/mail/smtpserver.py (aiosmtpd)
// started on a free port, plain or with implicit TLS, with or without a required login, and
// stopped with the object. Each received message lands in the folder as N.eml; parsed() reads
// one back through Python's e-mail parser (tests/mail/mimeparse.py).
#pragma once

#include <fcntl.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/arrstr.h>
#include <wx/filename.h>
#include <wx/string.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#ifndef EVIDA_MAIL_TEST_DIR
#error "EVIDA_MAIL_TEST_DIR names tests/mail"
#endif

class LoopbackSmtpServer {
 public:
    struct Options {
        bool tls = false;
        const char* user = nullptr;
        const char* password = nullptr;
    };

    LoopbackSmtpServer(const wxString& folder, Options options) : m_folder(folder) {
        int out[2];
        if (pipe(out) != 0) return;
        m_pid = fork();
        if (m_pid == 0) {
            dup2(out[1], STDOUT_FILENO);
            const int quiet = open("/dev/null", O_WRONLY);
            if (quiet >= 0) dup2(quiet, STDERR_FILENO);
            close(out[0]);
            close(out[1]);
            const std::string dir(folder.utf8_str());
            std::vector<const char*> argv = {python(), "-u", EVIDA_MAIL_TEST_DIR "/smtpserver.py", dir.c_str()};
            if (options.tls) argv.push_back("--tls");
            if (options.user) {
                argv.insert(argv.end(), {"--user", options.user, "--password", options.password});
            }
            argv.push_back(nullptr);
            execv(argv[0], const_cast<char* const*>(argv.data()));
            _exit(127);
        }
        close(out[1]);
        FILE* in = fdopen(out[0], "r");
        char line[128] = {};
        if (in && std::fgets(line, sizeof line, in) && std::strncmp(line, "port ", 5) == 0)
            m_port = std::atoi(line + 5);
        if (in) std::fclose(in);
    }
    ~LoopbackSmtpServer() {
        if (m_pid > 0) {
            kill(m_pid, SIGTERM);
            waitpid(m_pid, nullptr, 0);
        }
    }
    bool running() const { return m_port > 0; }
    int port() const { return m_port; }
    wxString message(int n) const { return wxString::Format("%s/%d.eml", m_folder, n); }
    bool received(int n) const { return wxFileName::FileExists(message(n)); }

    // What Python's parser read from message `n` ("subject:...", "part:...", "filename:..."
    // lines); the text part goes to `folder`/text.txt and attachments under their names.
    static wxArrayString parsed(const wxString& eml, const wxString& folder) {
        const std::string command = std::string(python()) + " " EVIDA_MAIL_TEST_DIR "/mimeparse.py '" +
                                    std::string(eml.utf8_str()) + "' '" + std::string(folder.utf8_str()) + "'";
        wxArrayString lines;
        FILE* p = popen(command.c_str(), "r");
        if (!p) return lines;
        std::string all;
        char buffer[4096];
        size_t n;
        while ((n = std::fread(buffer, 1, sizeof buffer, p)) > 0) all.append(buffer, n);
        pclose(p);
        lines = wxSplit(wxString::FromUTF8(all.c_str()), '\n', '\0');
        if (!lines.empty() && lines.Last().empty()) lines.RemoveAt(lines.size() - 1);
        return lines;
    }

 private:
    // aiosmtpd is a Debian package of the system Python, not of a Python on PATH.
    static const char* python() { return access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3" : "python3"; }

    wxString m_folder;
    pid_t m_pid = -1;
    int m_port = 0;
};

// A loopback port nobody listens on: bound but never listening, so connections are refused.
struct ClosedPort {
    int fd = socket(AF_INET, SOCK_STREAM, 0);
    int port = 0;
    ClosedPort() {
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t len = sizeof a;
        if (bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 &&
            getsockname(fd, reinterpret_cast<sockaddr*>(&a), &len) == 0)
            port = ntohs(a.sin_port);
    }
    ~ClosedPort() { close(fd); }
};
