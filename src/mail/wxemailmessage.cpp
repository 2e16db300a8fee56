#include "wxemailmessage.h"

#include <wx/base64.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/time.h>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace {

// Month names of the Date header as RFC 5322 has them, whatever the locale.
const char* const MESICE[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// Base64 lines are cut at 76 characters: SMTP servers refuse lines over 998.
constexpr size_t BASE64_LINE = 76;

std::string utf8(const wxString& text) {
    const wxScopedCharBuffer b = text.utf8_str();
    return std::string(b.data(), b.length());
}

std::string base64(const void* data, size_t length) { return std::string(wxBase64Encode(data, length).utf8_str()); }

// Body text with every line end as CR LF, as the SMTP transfer expects.
std::string crlf(const std::string& text) {
    std::string out;
    out.reserve(text.size() + text.size() / 32);
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r') {
            out += "\r\n";
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else if (c == '\n') {
            out += "\r\n";
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace

const char* const wxEmailMessage::BOUNDARY = "pj+EhsWuSQJxx7pr";

wxString wxEmailMessage::BareAddress(const wxString& address) {
    const int open = address.Find('<', true);
    if (open != wxNOT_FOUND) {
        const int close = address.find('>', open);
        if (close != wxNOT_FOUND) return address.Mid(open + 1, close - open - 1).Strip(wxString::both);
    }
    return wxString(address).Strip(wxString::both);
}

wxString wxEmailMessage::GenerateID() {
    // Milliseconds of the clock plus a counter: two messages of one millisecond still differ.
    static std::atomic<long> counter{0};
    const long number = static_cast<long>(wxGetUTCTimeMillis().GetValue()) * 1000 + (counter++ % 1000);
    return wxString::Format("<%ld@wxmailer>", number);
}

std::string wxEmailMessage::EncodedWord(const wxString& text) {
    const std::string bytes = utf8(text);
    return "=?UTF-8?B?" + base64(bytes.data(), bytes.size()) + "?=";
}

bool wxEmailMessage::DoAddAttachment(const wxString& path, std::string* out) const {
    wxFFile file(path, "rb");
    if (!file.IsOpened()) return false;
    const wxFileOffset length = file.Length();
    if (length < 0) return false;
    std::string bytes(static_cast<size_t>(length), '\0');
    if (length > 0 && file.Read(&bytes[0], bytes.size()) != bytes.size()) return false;

    const std::string name = EncodedWord(wxFileName(path).GetFullName());
    *out += "\r\n--";
    *out += BOUNDARY;
    *out += "\r\nContent-Type: application/octet-stream; name=\"" + name + "\"\r\n";
    *out += "Content-Disposition: attachement; filename=\"" + name + "\"\r\n";
    *out += "Content-Transfer-Encoding: base64 \r\n\r\n";
    const std::string encoded = base64(bytes.data(), bytes.size());
    for (size_t at = 0; at < encoded.size(); at += BASE64_LINE) {
        if (at > 0) *out += "\r\n";
        out->append(encoded, at, BASE64_LINE);
    }
    return true;
}

bool wxEmailMessage::Finalize(const wxDateTime& date) {
    m_payload.clear();
    m_position = 0;
    std::string p;
    p += std::string(wxString::Format("Date: %d %s %d %d:%d:%d\r\n", date.GetDay(), MESICE[date.GetMonth()],
                                      date.GetYear(), date.GetHour(), date.GetMinute(), date.GetSecond())
                         .utf8_str());
    p += "To: " + utf8(m_to) + "\r\n";
    p += "From: " + utf8(m_from) + "\r\n";
    p += "Message-ID: " + utf8(GenerateID()) + "\r\n";
    p += "Subject: " + EncodedWord(m_subject) + "\r\n";
    p += "Reply-To: " + utf8(m_from) + "\r\n";
    p += "MIME-Version: 1.0\r\n";
    p += std::string("Content-Type: multipart/mixed; boundary=\"") + BOUNDARY + "\"\r\n";
    p += std::string("\r\n--") + BOUNDARY + "\r\n";
    p += "Content-Type: text/plain; charset=\"utf-8\"\r\n";
    p += "Content-Transfer-Encoding: 8bit\r\n\r\n";
    p += crlf(utf8(m_text));
    for (const wxString& path : m_attachments) {
        if (!DoAddAttachment(path, &p)) return false;
    }
    // The closing delimiter stands on a line of its own after the last part.
    p += std::string("\r\n--") + BOUNDARY + "--\r\n";
    m_payload = std::move(p);
    return true;
}

size_t wxEmailMessage::Read(char* buffer, size_t size) const {
    if (m_position >= m_payload.size()) return 0;
    const size_t n = std::min(size, m_payload.size() - m_position);
    std::memcpy(buffer, m_payload.data() + m_position, n);
    m_position += n;
    return n;
}
