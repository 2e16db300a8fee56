// Shared pieces of the tests of the filings' prints: the tax office code lists installed in
// the data directory, the PDF written (and kept beside the screenshots when asked), and a
// printed table row read back as the words of its line.
#pragma once

#include <wx/filefn.h>
#include <wx/utils.h>

#include <algorithm>
#include <cmath>

#include "dph/ciselniky.h"
#include "printtest.h"

namespace podanitest {

// The offices from the official sample and two workplaces of office 451.
inline void instalovatCiselniky() {
    ASSERT_TRUE(wxCopyFile(wxString(EVIDA_PRINT_TEST_DIR) + "/../data/ciselniky/ufo_epo_ciselnik.xml",
                           lxutils::ciselnikPath("ufo.xml")));
    wxFFile f(lxutils::ciselnikPath("pracufo.xml"), "wb");
    ASSERT_TRUE(f.IsOpened());
    f.Write(wxString::FromUTF8(R"(<?xml version="1.0" encoding="UTF-8"?><Ciselnik Nazev="pracufo">
<Veta c_pracufo="2001" nazu_pracufo="Územní pracoviště pro Prahu 1" c_ufo="451" d_zaniku=""/>
</Ciselnik>)"),
            wxConvUTF8);
}

template <class Print, class Podani>
wxString pdf(const Podani& p, const wxString& dir, const char* name) {
    Print print(nullptr, p);
    const wxString path = dir + "/" + name + ".pdf";
    EXPECT_TRUE(print.writePdf(path, print.printTitle()));
    wxString shots;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(path, shots + "/" + name + ".pdf");
    return path;
}

// The words of the line on which the word `slovo` stands (its `occurrence`-th such line), left
// to right and joined by spaces; no-break spaces read as spaces. Empty when there is none.
inline wxString radek(const std::vector<PdfWord>& words, const wxString& slovo, int occurrence = 0) {
    for (const PdfWord& w : words) {
        if (w.text != slovo || occurrence-- > 0) continue;
        std::vector<const PdfWord*> line;
        for (const PdfWord& o : words)
            if (o.page == w.page && std::abs(o.yMin - w.yMin) < 1.5) line.push_back(&o);
        std::sort(line.begin(), line.end(), [](const PdfWord* a, const PdfWord* b) { return a->xMin < b->xMin; });
        wxString text;
        for (const PdfWord* o : line) text += (text.empty() ? "" : " ") + o->text;
        text.Replace(wxString(wxUniChar(0x00A0)), " ");
        return text;
    }
    return wxString();
}

}  // namespace podanitest
