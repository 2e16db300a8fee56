// One e-mail as it travels to the SMTP server: sender, recipient, subject, body text and the
// files attached, built by Finalize() into a multipart MIME text (lines ended by CR LF) that
// the sender uploads piece by piece from its read position.
#pragma once

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/string.h>

#include <cstddef>
#include <string>

class wxEmailMessage {
 public:
    // The boundary between the parts; fixed, it never occurs in Base64 or in our headers.
    static const char* const BOUNDARY;

    wxEmailMessage() = default;
    wxEmailMessage(const wxString& from, const wxString& to, const wxString& subject, const wxString& text)
        : m_from(from), m_to(to), m_subject(subject), m_text(text) {}

    void SetFrom(const wxString& from) { m_from = from; }
    void SetTo(const wxString& to) { m_to = to; }
    void SetSubject(const wxString& subject) { m_subject = subject; }
    void SetText(const wxString& text) { m_text = text; }
    void AddAttachment(const wxString& path) { m_attachments.Add(path); }

    const wxString& GetFrom() const { return m_from; }
    const wxString& GetTo() const { return m_to; }
    const wxString& GetSubject() const { return m_subject; }
    const wxString& GetText() const { return m_text; }
    const wxArrayString& GetAttachments() const { return m_attachments; }

    // The bare addresses: "a@b" also from "Name <a@b>".
    wxString GetFromEmail() const { return BareAddress(m_from); }
    wxString GetToEmail() const { return BareAddress(m_to); }
    static wxString BareAddress(const wxString& address);

    // Builds the payload dated now; false when an attachment cannot be read (the payload is
    // then empty). The read position starts at the beginning.
    bool Finalize() { return Finalize(wxDateTime::Now()); }
    bool Finalize(const wxDateTime& date);
    const std::string& GetPayload() const { return m_payload; }

    // Copies the next at most `size` bytes of the payload into `buffer` and moves on; 0 at the end.
    size_t Read(char* buffer, size_t size) const;
    void Rewind() const { m_position = 0; }

    // "<number@wxmailer>", a new number for each call within the process.
    static wxString GenerateID();
    // "=?UTF-8?B?...?=": a text of any letters as one encoded word of a header.
    static std::string EncodedWord(const wxString& text);

 private:
    bool DoAddAttachment(const wxString& path, std::string* out) const;

    wxString m_from, m_to, m_subject, m_text;
    wxArrayString m_attachments;
    std::string m_payload;
    mutable size_t m_position = 0;
};
