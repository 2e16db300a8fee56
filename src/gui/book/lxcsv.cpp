#include "lxcsv.h"

#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/log.h>
#include <wx/strconv.h>

#include <string>

#include "lxrowmodel.h"

namespace lxcsv {

namespace {

// A line in the file's encoding. Windows-1250 lacks some characters (a euro sign it has, an
// emoji not); the line is converted whole when it can be, else character by character.
std::string encode(const wxString& text, Kodovani kodovani) {
    if (kodovani == Kodovani::UTF8) return std::string(text.utf8_str());
    static wxCSConv cp1250("windows-1250");
    const wxCharBuffer whole = text.mb_str(cp1250);
    if (whole.length() > 0 || text.empty()) return std::string(whole.data(), whole.length());
    std::string out;
    for (const wxUniChar c : text) {
        const wxCharBuffer one = wxString(c).mb_str(cp1250);
        out += one.length() > 0 ? std::string(one.data(), one.length()) : std::string("?");
    }
    return out;
}

}  // namespace

wxString field(const wxString& text) {
    wxString quoted = text;
    quoted.Replace("\"", "\"\"");
    return "\"" + quoted + "\"";
}

wxString line(const wxArrayString& fields) {
    wxString out;
    for (size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) out += ";";
        out += field(fields[i]);
    }
    return out + "\r\n";
}

bool write(const wxString& path, const wxArrayString& captions, std::size_t count,
           const std::function<wxArrayString(std::size_t)>& row, Kodovani kodovani, wxString* error) {
    const auto fail = [&](const char* text) {
        if (error) *error = wxString::Format(wxString::FromUTF8(text), path);
        return false;
    };
    // The failure is told in our own words; wx's log would add a second message box.
    wxLogNull quiet;
    wxFFile file(path, "wb");
    if (!file.IsOpened()) return fail("Soubor %s nelze vytvořit");

    std::string buffer = kodovani == Kodovani::UTF8 ? std::string("\xEF\xBB\xBF") : std::string();
    buffer += encode(line(captions), kodovani);
    bool ok = true;
    // Written in pieces, so that a large list never needs its whole text in memory.
    constexpr size_t CHUNK = 1 << 20;
    for (size_t r = 0; r < count && ok; ++r) {
        buffer += encode(line(row(r)), kodovani);
        if (buffer.size() >= CHUNK) {
            ok = file.Write(buffer.data(), buffer.size()) == buffer.size();
            buffer.clear();
        }
    }
    if (ok && !buffer.empty()) ok = file.Write(buffer.data(), buffer.size()) == buffer.size();
    ok = file.Close() && ok;
    if (!ok) {
        wxRemoveFile(path);
        return fail("Do souboru %s nelze zapisovat");
    }
    return true;
}

bool write(const wxString& path, const lxRowModel& rows, Kodovani kodovani, wxString* error) {
    wxArrayString captions;
    for (int c = 0; c < rows.columnCount(); ++c) captions.Add(rows.column(c).caption);
    const auto row = [&rows](std::size_t r) {
        wxArrayString fields;
        for (int c = 0; c < rows.columnCount(); ++c) {
            wxString text = rows.text(r, c);
            // Right-aligned columns hold numbers; "31 458,00" with a no-break space would be text.
            if (rows.column(c).right) text.Replace(wxString(wxUniChar(0x00A0)), wxString());
            fields.Add(text);
        }
        return fields;
    };
    return write(path, captions, rows.rowCount(), row, kodovani, error);
}

}  // namespace lxcsv
