// Building and uploading the e-mail of an invoice: the MIME text of a message with a PDF of a
// few megabytes (Base64 lines, encoded words) and reading it out in libcurl's pieces. Both
// must stay linear in the size of the attachment.
#include <benchmark/benchmark.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/init.h>

#include <string>
#include <vector>

#include "wxemailmessage.h"

namespace {

wxString attachment(size_t size) {
    const wxString path = wxFileName::GetTempDir() + wxString::Format("/evida-bench-%zu.pdf", size);
    std::string bytes(size, '\0');
    unsigned state = 1;
    for (char& c : bytes) {
        state = state * 1103515245u + 12345u;
        c = static_cast<char>(state >> 16);
    }
    wxFFile f(path, "wb");
    f.Write(bytes.data(), bytes.size());
    return path;
}

void BM_FinalizeWithPdf(benchmark::State& state) {
    const size_t size = static_cast<size_t>(state.range(0));
    const wxString pdf = attachment(size);
    for (auto _ : state) {
        wxEmailMessage m(wxString::FromUTF8("Účtárna <ucetni@firma.cz>"), "nakup@odberatel.cz",
                         wxString::FromUTF8("Faktura č. 2024015"), wxString::FromUTF8("Dobrý den,\nv příloze fakturu"));
        m.AddAttachment(pdf);
        benchmark::DoNotOptimize(m.Finalize());
        benchmark::DoNotOptimize(m.GetPayload().size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(size));
    wxRemoveFile(pdf);
}
BENCHMARK(BM_FinalizeWithPdf)->Arg(100 << 10)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);

// libcurl asks for CURL_MAX_WRITE_SIZE-sized pieces (16 KiB) of the upload.
void BM_ReadPayload(benchmark::State& state) {
    const wxString pdf = attachment(static_cast<size_t>(state.range(0)));
    wxEmailMessage m("a@b.cz", "c@d.cz", "x", "y");
    m.AddAttachment(pdf);
    m.Finalize();
    std::vector<char> buffer(16384);
    for (auto _ : state) {
        m.Rewind();
        size_t total = 0, n;
        while ((n = m.Read(buffer.data(), buffer.size())) > 0) total += n;
        benchmark::DoNotOptimize(total);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(m.GetPayload().size()));
    wxRemoveFile(pdf);
}
BENCHMARK(BM_ReadPayload)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
