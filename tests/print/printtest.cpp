#include "printtest.h"

#include <wx/dcmemory.h>
#include <wx/filename.h>
#include <wx/prntbase.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>
#include <regex>
#include <sstream>

#include "printcontroller.h"

std::string runCommand(const std::string& command) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return out;
    char buffer[4096];
    size_t n;
    while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
    pclose(pipe);
    return out;
}

namespace {
std::string quoted(const wxString& path) { return "'" + std::string(path.utf8_str()) + "'"; }
}  // namespace

void PrintTest::SetUp() {
    char tmpl[] = "/tmp/evida-print-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    m_dir = wxString::FromUTF8(tmpl);
    // PDFs made without a dialog go to the temporary folder: this one.
    wxSetEnv("TMPDIR", m_dir);
}

void PrintTest::TearDown() {
    wxUnsetEnv("TMPDIR");
    if (!getenv("EVIDA_KEEP_TEST_FILES")) wxFileName::Rmdir(m_dir, wxPATH_RMDIR_RECURSIVE);
}

std::map<std::string, wxString> PrintTest::pdfInfo(const wxString& pdf) {
    std::map<std::string, wxString> info;
    std::istringstream lines(runCommand("pdfinfo -enc UTF-8 " + quoted(pdf) + " 2>/dev/null"));
    std::string line;
    while (std::getline(lines, line)) {
        const size_t colon = line.find(':');
        if (colon == std::string::npos) continue;
        const size_t value = line.find_first_not_of(' ', colon + 1);
        info[line.substr(0, colon)] = wxString::FromUTF8(value == std::string::npos ? "" : line.substr(value));
    }
    return info;
}

int PrintTest::pdfPages(const wxString& pdf) {
    long pages = -1;
    pdfInfo(pdf)["Pages"].ToLong(&pages);
    return static_cast<int>(pages);
}

wxString PrintTest::pdfText(const wxString& pdf, int page) {
    const std::string range = page > 0 ? " -f " + std::to_string(page) + " -l " + std::to_string(page) : "";
    return wxString::FromUTF8(
        runCommand("pdftotext -enc UTF-8 -layout" + range + " " + quoted(pdf) + " - 2>/dev/null"));
}

std::vector<PdfWord> PrintTest::pdfWords(const wxString& pdf) {
    std::vector<PdfWord> words;
    const std::string html = runCommand("pdftotext -enc UTF-8 -bbox " + quoted(pdf) + " - 2>/dev/null");
    static const std::regex word(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re");
    int page = 0;
    std::istringstream lines(html);
    std::string line;
    std::smatch m;
    while (std::getline(lines, line)) {
        if (line.find("<page ") != std::string::npos) ++page;
        if (std::regex_search(line, m, word))
            words.push_back({page, std::stod(m[1]), std::stod(m[2]), std::stod(m[3]), std::stod(m[4]),
                             wxString::FromUTF8(m[5].str())});
    }
    return words;
}

int previewDarkPixels(lxPrintController& print, const wxString& png) {
    wxPrintPreview* preview = print.createPreview();
    if (!preview) return -1;
    auto* frame = new wxPreviewFrame(preview, nullptr, "preview", wxDefaultPosition, wxSize(880, 650));
    frame->Initialize();
    preview->SetZoom(100);
    preview->SetCurrentPage(1);
    preview->UpdatePageRendering();
    wxBitmap canvas(1400, 1400);
    {
        wxMemoryDC dc(canvas);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        preview->PaintPage(preview->GetCanvas(), dc);
    }
    frame->Destroy();
    const wxImage img = canvas.ConvertToImage();
    if (!png.empty()) img.SaveFile(png, wxBITMAP_TYPE_PNG);
    int dark = 0;
    for (int y = 0; y < img.GetHeight(); ++y)
        for (int x = 0; x < img.GetWidth(); ++x)
            dark += img.GetRed(x, y) + img.GetGreen(x, y) + img.GetBlue(x, y) < 3 * 100;
    return dark;
}
