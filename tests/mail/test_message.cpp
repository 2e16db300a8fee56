// The MIME text of an invoice e-mail: its lines as listed for the transfer, and what a real
// mail reader (Python's e-mail package) makes of it: subject, attachment name and bytes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include "mailtest.h"
#include "wxemailmessage.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

std::vector<std::string> crlfLines(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t at; (at = text.find("\r\n", start)) != std::string::npos; start = at + 2)
        lines.push_back(text.substr(start, at - start));
    lines.push_back(text.substr(start));
    return lines;
}

}  // namespace

TEST_F(MailTest, PayloadLinesInOrder) {
    const wxString pdf = writeFile(u8("Faktura č. 2024001.pdf"), pdfBytes(100));
    wxEmailMessage m(u8("Účetní <ucetni@firma.cz>"), "odberatel@example.cz", u8("Faktura č. 2024001"),
                     u8("Dobrý den,\nv příloze Vám zasíláme fakturu"));
    m.AddAttachment(pdf);
    ASSERT_TRUE(m.Finalize(wxDateTime(5, wxDateTime::Mar, 2024, 9, 7, 3)));
    const std::vector<std::string> lines = crlfLines(m.GetPayload());
    const std::string name = "=?UTF-8?B?RmFrdHVyYSDEjS4gMjAyNDAwMS5wZGY=?=";
    ASSERT_GE(lines.size(), 21u);
    EXPECT_EQ(lines[0], "Date: 5 Mar 2024 9:7:3");
    EXPECT_EQ(lines[1], "To: odberatel@example.cz");
    EXPECT_EQ(lines[2], "From: " + std::string(u8("Účetní <ucetni@firma.cz>").utf8_str()));
    EXPECT_THAT(lines[3], ::testing::MatchesRegex("Message-ID: <[0-9]+@wxmailer>"));
    EXPECT_EQ(lines[4], "Subject: =?UTF-8?B?RmFrdHVyYSDEjS4gMjAyNDAwMQ==?=");
    EXPECT_EQ(lines[5], "Reply-To: " + std::string(u8("Účetní <ucetni@firma.cz>").utf8_str()));
    EXPECT_EQ(lines[6], "MIME-Version: 1.0");
    EXPECT_EQ(lines[7], "Content-Type: multipart/mixed; boundary=\"pj+EhsWuSQJxx7pr\"");
    EXPECT_EQ(lines[8], "");
    EXPECT_EQ(lines[9], "--pj+EhsWuSQJxx7pr");
    EXPECT_EQ(lines[10], "Content-Type: text/plain; charset=\"utf-8\"");
    EXPECT_EQ(lines[11], "Content-Transfer-Encoding: 8bit");
    EXPECT_EQ(lines[12], "");
    // The body's own line break travels as CR LF too.
    EXPECT_EQ(lines[13], "Dobrý den,");
    EXPECT_EQ(lines[14], std::string(u8("v příloze Vám zasíláme fakturu").utf8_str()));
    EXPECT_EQ(lines[15], "--pj+EhsWuSQJxx7pr");
    EXPECT_EQ(lines[16], "Content-Type: application/octet-stream; name=\"" + name + "\"");
    EXPECT_EQ(lines[17], "Content-Disposition: attachement; filename=\"" + name + "\"");
    EXPECT_EQ(lines[18], "Content-Transfer-Encoding: base64 ");
    EXPECT_EQ(lines[19], "");
    EXPECT_EQ(lines[lines.size() - 2], "--pj+EhsWuSQJxx7pr--");
    EXPECT_EQ(lines.back(), "");
    // No line is over what SMTP servers take.
    for (const std::string& line : lines) EXPECT_LE(line.size(), 998u);
}

TEST_F(MailTest, BareAddresses) {
    struct Case {
        const char* written;
        const char* bare;
    } cases[] = {
        {"a@b.cz", "a@b.cz"},
        {"  a@b.cz ", "a@b.cz"},
        {"Jan Novák <jan@novak.cz>", "jan@novak.cz"},
        {"\"Novák, Jan\" < jan@novak.cz >", "jan@novak.cz"},
        {"<jan@novak.cz>", "jan@novak.cz"},
        {"", ""},
    };
    for (const Case& c : cases) {
        wxEmailMessage m(u8(c.written), u8(c.written), "", "");
        EXPECT_EQ(m.GetFromEmail(), u8(c.bare)) << c.written;
        EXPECT_EQ(m.GetToEmail(), u8(c.bare)) << c.written;
    }
}

// What a mail reader sees: the Czech subject and the Czech file name decoded, the attachment
// exactly the bytes of the file, for sizes around the Base64 groups and line length.
TEST_F(MailTest, ReaderDecodesSubjectNameAndBytes) {
    for (size_t size : {0u, 1u, 2u, 3u, 56u, 57u, 58u, 100000u}) {
        SCOPED_TRACE(size);
        const std::string bytes = pdfBytes(size);
        const wxString pdf = writeFile(u8("Faktura č. 2024001 – Žluťoučký kůň.pdf"), bytes);
        wxEmailMessage m("ucetni@firma.cz", "odberatel@example.cz", u8("Faktura č. 2024001 – Příliš žluťoučký"),
                         u8("Dobrý den,\nv příloze Vám zasíláme fakturu"));
        m.AddAttachment(pdf);
        ASSERT_TRUE(m.Finalize());
        const wxString eml = writeFile("zprava.eml", m.GetPayload());
        const wxString out = freshDir("cteni");
        const wxArrayString seen = LoopbackSmtpServer::parsed(eml, out);
        EXPECT_THAT(seen, Contains(u8("subject:Faktura č. 2024001 – Příliš žluťoučký")));
        EXPECT_THAT(seen, Contains(u8("type:multipart/mixed")));
        EXPECT_THAT(seen, Contains(u8("defects:0")));
        EXPECT_THAT(seen, Contains(u8("filename:Faktura č. 2024001 – Žluťoučký kůň.pdf")));
        EXPECT_TRUE(fileBytes(out + u8("/Faktura č. 2024001 – Žluťoučký kůň.pdf")) == bytes) << "attachment differs";
        EXPECT_EQ(fileBytes(out + "/text.txt"),
                  std::string(u8("Dobrý den,\nv příloze Vám zasíláme fakturu").utf8_str()));
    }
}

TEST_F(MailTest, UnreadableAttachmentLeavesNoPayload) {
    wxEmailMessage m("a@b.cz", "c@d.cz", "x", "y");
    m.AddAttachment(m_dir + "/neni.pdf");
    EXPECT_FALSE(m.Finalize());
    EXPECT_TRUE(m.GetPayload().empty());
}

// The upload reads the payload in pieces of whatever size libcurl asks for, to the end.
TEST_F(MailTest, ReadGivesThePayloadInPieces) {
    wxEmailMessage m("a@b.cz", "c@d.cz", u8("Předmět"), u8("Text"));
    m.AddAttachment(writeFile("a.pdf", pdfBytes(5000)));
    ASSERT_TRUE(m.Finalize());
    for (size_t piece : {1u, 7u, 1024u, 65536u}) {
        std::string back;
        std::vector<char> buffer(piece);
        size_t n;
        m.Rewind();
        while ((n = m.Read(buffer.data(), piece)) > 0) back.append(buffer.data(), n);
        EXPECT_EQ(back, m.GetPayload()) << piece;
        EXPECT_EQ(m.Read(buffer.data(), piece), 0u);
    }
}
