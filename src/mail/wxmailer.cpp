#include "wxmailer.h"

#include <curl/curl.h>

#include <memory>

#include "wxemailmessage.h"

namespace {

bool curlReady() {
    static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return ready;
}

struct CurlDeleter {
    void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};
struct ListDeleter {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

std::string utf8(const wxString& text) { return std::string(text.utf8_str()); }

}  // namespace

wxString smtpUrl(const wxString& server, int port, bool secure) {
    return wxString::Format("%s://%s:%d", secure ? "smtps" : "smtp", server, port);
}

size_t payload_source(void* buffer, size_t size, size_t count, void* message) {
    if (size == 0 || count == 0) return 0;
    return static_cast<const wxEmailMessage*>(message)->Read(static_cast<char*>(buffer), size * count);
}

bool wxMailer::Send(const wxEmailMessage& message) {
    m_error.clear();
    if (!curlReady()) {
        m_error = curl_easy_strerror(CURLE_FAILED_INIT);
        return false;
    }
    std::unique_ptr<CURL, CurlDeleter> curl(curl_easy_init());
    if (!curl) {
        m_error = curl_easy_strerror(CURLE_FAILED_INIT);
        return false;
    }
    // libcurl copies the option strings, but the recipient list must live through the transfer.
    const std::string user = utf8(m_user), password = utf8(m_password), url = utf8(m_url);
    const std::string from = "<" + utf8(message.GetFromEmail()) + ">";
    const std::string to = "<" + utf8(message.GetToEmail()) + ">";
    CURL* c = curl.get();
    if (m_auth) {
        curl_easy_setopt(c, CURLOPT_USERNAME, user.c_str());
        curl_easy_setopt(c, CURLOPT_PASSWORD, password.c_str());
    }
    curl_easy_setopt(c, CURLOPT_URL, url.c_str());
    if (m_ssl) {
        curl_easy_setopt(c, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
        curl_easy_setopt(c, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(c, CURLOPT_SSL_VERIFYHOST, 0L);
    }
    curl_easy_setopt(c, CURLOPT_MAIL_FROM, from.c_str());
    std::unique_ptr<curl_slist, ListDeleter> recipients(curl_slist_append(nullptr, to.c_str()));
    curl_easy_setopt(c, CURLOPT_MAIL_RCPT, recipients.get());
    message.Rewind();
    curl_easy_setopt(c, CURLOPT_READFUNCTION, payload_source);
    curl_easy_setopt(c, CURLOPT_READDATA, const_cast<wxEmailMessage*>(&message));
    curl_easy_setopt(c, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(c, CURLOPT_VERBOSE, 1L);
    const CURLcode result = curl_easy_perform(c);
    if (result != CURLE_OK) {
        m_error = wxString::FromUTF8(curl_easy_strerror(result));
        return false;
    }
    return true;
}
