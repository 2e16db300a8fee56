// Shared pieces of the print tests: a private temporary folder per test, and reading our
// PDF files back with poppler's pdfinfo and pdftotext.
#pragma once

#include <gtest/gtest.h>
#include <wx/string.h>

#include <map>
#include <string>
#include <vector>

// Shared by the test headers, which a test may include together.
#ifndef EVIDA_TEST_U8
#define EVIDA_TEST_U8
inline wxString u8(const char* text) { return wxString::FromUTF8(text); }
#endif

// A word that pdftotext found on a page, its box in PDF points from the top left corner.
struct PdfWord {
    int page;
    double xMin, yMin, xMax, yMax;
    wxString text;
};

constexpr double PT_PER_MM = 72.0 / 25.4;

class PrintTest : public ::testing::Test {
 public:
    // The readers are public for the tests of the program's own print commands.
    // "Pages", "Title", "Author", "Creator", ... as pdfinfo prints them.
    static std::map<std::string, wxString> pdfInfo(const wxString& pdf);
    static int pdfPages(const wxString& pdf);
    // The text of the whole file, or of one page. pdftotext gives the no-break spaces
    // between thousands as plain spaces.
    static wxString pdfText(const wxString& pdf, int page = 0);
    static std::vector<PdfWord> pdfWords(const wxString& pdf);

 protected:
    void SetUp() override;
    void TearDown() override;

    wxString path(const wxString& name) const { return m_dir + "/" + name; }

    wxString m_dir;
};

class lxPrintController;
// How many pixels of the preview's first page are dark: an empty sheet has none. With `png`
// the drawn page is saved there too, for a person to look at.
int previewDarkPixels(lxPrintController& print, const wxString& png = wxString());

// Output of a shell command.
std::string runCommand(const std::string& command);
