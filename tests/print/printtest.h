// Shared pieces of the print tests: a private temporary folder per test, and reading our
// PDF files back with poppler's pdfinfo and pdftotext.
#pragma once

#include <gtest/gtest.h>
#include <wx/string.h>

#include <map>
#include <string>
#include <vector>

inline wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A word that pdftotext found on a page, its box in PDF points from the top left corner.
struct PdfWord {
    int page;
    double xMin, yMin, xMax, yMax;
    wxString text;
};

constexpr double PT_PER_MM = 72.0 / 25.4;

class PrintTest : public ::testing::Test {
 protected:
    void SetUp() override;
    void TearDown() override;

    wxString path(const wxString& name) const { return m_dir + "/" + name; }

    // "Pages", "Title", "Author", "Creator", ... as pdfinfo prints them.
    static std::map<std::string, wxString> pdfInfo(const wxString& pdf);
    static int pdfPages(const wxString& pdf);
    // The text of the whole file, or of one page.
    static wxString pdfText(const wxString& pdf, int page = 0);
    static std::vector<PdfWord> pdfWords(const wxString& pdf);

    wxString m_dir;
};

// Output of a shell command.
std::string runCommand(const std::string& command);
