#include "download.h"

#include <curl/curl.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/tokenzr.h>
#include <wx/utils.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "dbmodel.h"
#include "lxutils.h"

namespace lxutils {

namespace {

const char* const DEFAULT_CNB_URL = "https://www.cnb.cz";
const char* const DEFAULT_UPDATE_URL = "https://www.evida.cz";
const char* const DAILY_LIST_PATH = "/cs/financni_trhy/devizovy_trh/kurzy_devizoveho_trhu/denni_kurz.txt?date=";

const long CONNECT_TIMEOUT_S = 15;
const long TOTAL_TIMEOUT_S = 120;
// Nothing the program downloads comes near this; a larger answer is not what was asked for.
const curl_off_t MAX_FILE_SIZE = 64 * 1024 * 1024;

wxString baseUrl(const char* variable, const char* fallback) {
    wxString url;
    if (!wxGetEnv(variable, &url) || url.empty()) url = fallback;
    while (url.EndsWith("/")) url.RemoveLast();
    return url;
}

size_t writeToFile(char* data, size_t size, size_t count, void* file) {
    return std::fwrite(data, size, count, static_cast<FILE*>(file)) * size;
}

struct CurlDeleter {
    void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};

bool curlReady() {
    static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return ready;
}

// Where the fields of one rate are on a line of a list.
struct ListFormat {
    size_t fields;    // a line counts only with exactly this many "|"-separated fields
    size_t quantity;  // indexes from 0
    size_t code;
    size_t rate;
};
const ListFormat DAILY_LIST = {5, 2, 3, 4};
const ListFormat YEARLY_LIST = {4, 1, 2, 3};

// A number of the list, decimal comma allowed; 1.0 when the text does not read as a number.
double listNumber(wxString text) {
    text.Trim(true).Trim(false);
    text.Replace(",", ".");
    double value = 1.0;
    if (!text.ToCDouble(&value) || !std::isfinite(value)) value = 1.0;
    return value;
}

// The quantity a rate is quoted for; one that is not a positive number counts as 1 so that
// the division stays finite.
double listQuantity(const wxString& text) {
    const double quantity = listNumber(text);
    return quantity > 0 ? quantity : 1.0;
}

// The whole file; false when it cannot be read.
bool readFile(const wxString& path, std::string* content) {
    wxFFile file(path, "rb");
    if (!file.IsOpened()) return false;
    const wxFileOffset length = file.Length();
    if (length < 0) return false;
    content->resize(static_cast<size_t>(length));
    return length == 0 || file.Read(&(*content)[0], content->size()) == content->size();
}

// The rates of a saved list. Only lines ended by a line feed count; the header (it names the
// column "kurz") and the line with the list's date and number ("#") are skipped, as is every
// line without the exact number of fields. A file without any line feed is not a list at all:
// it is deleted and gives no rates.
std::vector<Kurz> readList(const wxString& path, const ListFormat& format, const wxDateTime& datum, bool jednotny) {
    std::vector<Kurz> rates;
    std::string raw;
    if (!readFile(path, &raw)) return rates;
    if (raw.find('\n') == std::string::npos) {
        wxRemoveFile(path);
        return rates;
    }
    wxString text = wxString::FromUTF8(raw.data(), raw.size());
    if (text.empty()) text = wxString(raw.data(), wxConvISO8859_1, raw.size());  // not UTF-8: the codes are ASCII
    size_t start = 0;
    for (size_t end = text.find('\n'); end != wxString::npos; start = end + 1, end = text.find('\n', start)) {
        const wxString line = text.substr(start, end - start);
        if (line.Contains("kurz") || line.Contains("#")) continue;
        const wxArrayString fields = wxStringTokenize(line, "|", wxTOKEN_RET_EMPTY_ALL);
        if (fields.size() != format.fields) continue;
        wxString code = fields[format.code];
        code.Trim(true).Trim(false);
        rates.emplace_back(0, datum, listNumber(fields[format.rate]) / listQuantity(fields[format.quantity]), code,
                           jednotny);
    }
    return rates;
}

// Downloads a list, reads it and stores its rates in one transaction.
bool downloadAndStore(const wxString& url, const wxString& fileName, const ListFormat& format, const wxDateTime& datum,
                      bool jednotny, int* stored) {
    if (stored) *stored = 0;
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen() || DbModel::isForeignStorage()) return false;
    const wxString directory = dataDir();
    if (!downloadFileFromNet(url, directory, fileName)) return false;
    const std::vector<Kurz> rates = readList(wxFileName(directory, fileName).GetFullPath(), format, datum, jednotny);
    if (rates.empty()) {
        wxLogVerbose(wxString::FromUTF8("V souboru %s nejsou žádné kurzy"), fileName);
        return false;
    }
    if (!model->addKurzy(rates)) return false;
    if (stored) *stored = static_cast<int>(rates.size());
    return true;
}

}  // namespace

wxString cnbUrl() { return baseUrl("EVIDA_CNB_URL", DEFAULT_CNB_URL); }

wxString updateUrl() { return baseUrl("EVIDA_UPDATE_URL", DEFAULT_UPDATE_URL); }

bool downloadFileFromNet(const wxString& url, const wxString& directory, const wxString& fileName) {
    if (url.empty() || fileName.empty() || !curlReady()) return false;
    if (!wxFileName::DirExists(directory) && !wxFileName::Mkdir(directory, 0777, wxPATH_MKDIR_FULL)) return false;
    const wxString target = wxFileName(directory, fileName).GetFullPath();
    const wxString partial = target + ".part";

    std::unique_ptr<CURL, CurlDeleter> curl(curl_easy_init());
    if (!curl) return false;
    FILE* out = wxFopen(partial, "wb");
    if (!out) {
        wxLogVerbose(wxString::FromUTF8("Nelze zapsat soubor %s"), partial);
        return false;
    }
    char error[CURL_ERROR_SIZE] = "";
    const wxScopedCharBuffer urlText = url.utf8_str();
    const std::string agent = std::string("Evida/") + EVIDA_VERSION;
    CURL* c = curl.get();
    curl_easy_setopt(c, CURLOPT_URL, urlText.data());
    curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, writeToFile);
    curl_easy_setopt(c, CURLOPT_WRITEDATA, out);
    curl_easy_setopt(c, CURLOPT_ERRORBUFFER, error);
    curl_easy_setopt(c, CURLOPT_USERAGENT, agent.c_str());
    curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(c, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(c, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(c, CURLOPT_MAXREDIRS, 5L);
#if LIBCURL_VERSION_NUM >= 0x075500
    curl_easy_setopt(c, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(c, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
#else
    curl_easy_setopt(c, CURLOPT_PROTOCOLS, static_cast<long>(CURLPROTO_HTTP | CURLPROTO_HTTPS));
    curl_easy_setopt(c, CURLOPT_REDIR_PROTOCOLS, static_cast<long>(CURLPROTO_HTTP | CURLPROTO_HTTPS));
#endif
    curl_easy_setopt(c, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(c, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, CONNECT_TIMEOUT_S);
    curl_easy_setopt(c, CURLOPT_TIMEOUT, TOTAL_TIMEOUT_S);
    curl_easy_setopt(c, CURLOPT_MAXFILESIZE_LARGE, MAX_FILE_SIZE);
    curl_easy_setopt(c, CURLOPT_ACCEPT_ENCODING, "");

    const CURLcode rc = curl_easy_perform(c);
    const bool written = std::fclose(out) == 0;
    if (rc != CURLE_OK || !written) {
        wxRemoveFile(partial);
        wxLogVerbose(wxString::FromUTF8("Stažení %s selhalo: %s"), url,
                     wxString::FromUTF8(error[0] ? error : curl_easy_strerror(rc)));
        return false;
    }
    if (!wxRenameFile(partial, target, true)) {
        wxRemoveFile(partial);
        wxLogVerbose(wxString::FromUTF8("Nelze uložit soubor %s"), target);
        return false;
    }
    return true;
}

bool kurzyDownload(const wxDateTime& date, int* stored) {
    if (stored) *stored = 0;
    if (!date.IsValid()) return false;
    const wxDateTime day = date.GetDateOnly();
    const wxString text = day.Format("%d.%m.%Y");
    return downloadAndStore(cnbUrl() + DAILY_LIST_PATH + text, text + ".txt", DAILY_LIST, day, false, stored);
}

bool jednotnekurzyDownload(int rok, int* stored) {
    if (stored) *stored = 0;
    if (rok < 1 || rok > 9999) return false;
    return downloadAndStore(updateUrl() + wxString::Format("/kurzy/%d.txt", rok), wxString::Format("%d.txt", rok),
                            YEARLY_LIST, wxDateTime(31, wxDateTime::Dec, rok), true, stored);
}

}  // namespace lxutils
