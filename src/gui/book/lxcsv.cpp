#include "lxcsv.h"

#include <wx/ffile.h>
#include <wx/filefn.h>

#include <string>

#include "lxrowmodel.h"

namespace lxcsv {

wxString field(const wxString& text) {
    wxString quoted = text;
    quoted.Replace("\"", "\"\"");
    return "\"" + quoted + "\"";
}

wxString line(const wxArrayString& fields) {
    wxString out;
    for (size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) out += ",";
        out += field(fields[i]);
    }
    return out + "\r\n";
}

bool write(const wxString& path, const lxRowModel& rows, wxString* error) {
    const auto fail = [&](const char* text) {
        if (error) *error = wxString::Format(wxString::FromUTF8(text), path);
        return false;
    };
    wxFFile file(path, "wb");
    if (!file.IsOpened()) return fail("Soubor %s nelze vytvořit");

    wxArrayString fields;
    for (int c = 0; c < rows.columnCount(); ++c) fields.Add(rows.column(c).caption);
    std::string buffer(line(fields).utf8_str());
    bool ok = true;
    // Written in pieces, so that a large list never needs its whole text in memory.
    constexpr size_t CHUNK = 1 << 20;
    for (size_t r = 0; r < rows.rowCount() && ok; ++r) {
        fields.clear();
        for (int c = 0; c < rows.columnCount(); ++c) fields.Add(rows.text(r, c));
        buffer += line(fields).utf8_str();
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

}  // namespace lxcsv
