// The SMTP sender: hands one finished wxEmailMessage to libcurl's SMTP client. The server's
// certificate and host name are deliberately not checked: small-business mail servers often
// run with self-signed certificates.
#pragma once

#include <wx/string.h>

#include <cstddef>

class wxEmailMessage;

// "smtps://server:port" in secure mode, else "smtp://server:port".
wxString smtpUrl(const wxString& server, int port, bool secure);

// libcurl's read callback: the next part of the message's payload (`message` is the
// wxEmailMessage), 0 at its end.
size_t payload_source(void* buffer, size_t size, size_t count, void* message);

class wxMailer {
 public:
    wxMailer(const wxString& user, const wxString& password, const wxString& url, bool auth, bool ssl)
        : m_user(user), m_password(password), m_url(url), m_auth(auth), m_ssl(ssl) {}

    // Sends a finalized message; false on any transfer error, whose libcurl text GetError() gives.
    bool Send(const wxEmailMessage& message);
    const wxString& GetError() const { return m_error; }

 private:
    wxString m_user, m_password, m_url;
    bool m_auth, m_ssl;
    wxString m_error;
};
