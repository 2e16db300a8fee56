#include "download.h"

#include <curl/curl.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/utils.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "dbmodel.h"
#include "kurzlistek.h"
#include "lxutils.h"

namespace lxutils {

namespace {

const char* const DEFAULT_CNB_URL = "https://www.cnb.cz";
const char* const DEFAULT_UPDATE_URL = "https://www.evida.cz";
const char* const DAILY_LIST_PATH = "/cs/financni_trhy/devizovy_trh/kurzy_devizoveho_trhu/denni_kurz.txt?date=";

const long CONNECT_TIMEOUT_S = 15;
const long TOTAL_TIMEOUT_S = 120;

wxString baseUrl(const char* variable, const char* fallback) {
    wxString url;
    if (!wxGetEnv(variable, &url) || url.empty()) url = fallback;
    while (url.EndsWith("/")) url.RemoveLast();
    return url;
}

// Where the transfer writes and how much it may write. The bytes are counted as they arrive,
// after the transfer library has decoded them: a server that announces no length, or sends a
// small compressed body that unpacks to gigabytes, is stopped at the cap all the same.
struct Sink {
    FILE* file;
    size_t limit;
    size_t written = 0;
    bool overLimit = false;
};

size_t writeToSink(char* data, size_t size, size_t count, void* userdata) {
    Sink* sink = static_cast<Sink*>(userdata);
    const size_t bytes = size * count;
    if (bytes > sink->limit - sink->written) {
        sink->overLimit = true;
        return 0;  // anything short of `bytes` aborts the transfer
    }
    sink->written += bytes;
    return std::fwrite(data, 1, bytes, sink->file);
}

struct CurlDeleter {
    void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};

bool curlReady() {
    static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return ready;
}

// The whole file, when it has no more than `limit` bytes; false otherwise or when it cannot
// be read.
bool readFile(const wxString& path, size_t limit, std::string* content) {
    wxFFile file(path, "rb");
    if (!file.IsOpened()) return false;
    const wxFileOffset length = file.Length();
    if (length < 0 || static_cast<unsigned long long>(length) > limit) return false;
    content->resize(static_cast<size_t>(length));
    return length == 0 || file.Read(&(*content)[0], content->size()) == content->size();
}

// Downloads a list, reads it and stores its rates in one transaction.
bool downloadAndStore(const wxString& url, const wxString& fileName, DruhListku druh, const wxDateTime& datum,
                      int* stored) {
    if (stored) *stored = 0;
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen() || DbModel::isForeignStorage()) return false;
    const wxString directory = dataDir();
    if (!downloadFileFromNet(url, directory, fileName, MAX_BAJTU_LISTKU)) return false;
    const wxString path = wxFileName(directory, fileName).GetFullPath();
    std::string bytes;
    if (!readFile(path, MAX_BAJTU_LISTKU, &bytes)) return false;
    if (bytes.find('\n') == std::string::npos) {
        wxRemoveFile(path);  // an answer of one line is an error text, not a list
        return false;
    }
    const KurzovniListek listek = readKurzovniListek(bytes, druh, datum);
    if (!listek.ok) {
        wxLogVerbose(wxString::FromUTF8("Soubor %s není kurzovní lístek"), fileName);
        return false;
    }
    const std::vector<Kurz>& rates = listek.kurzy;
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

bool downloadFileFromNet(const wxString& url, const wxString& directory, const wxString& fileName, size_t maxBytes) {
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
    Sink sink{out, maxBytes};
    char error[CURL_ERROR_SIZE] = "";
    const wxScopedCharBuffer urlText = url.utf8_str();
    const std::string agent = std::string("Evida/") + EVIDA_VERSION;
    CURL* c = curl.get();
    curl_easy_setopt(c, CURLOPT_URL, urlText.data());
    curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, writeToSink);
    curl_easy_setopt(c, CURLOPT_WRITEDATA, &sink);
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
    // A server that announces a larger body is refused before it sends any; the count in
    // writeToSink holds for those that announce nothing or less than they send.
    curl_easy_setopt(c, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(maxBytes));
    curl_easy_setopt(c, CURLOPT_ACCEPT_ENCODING, "");

    const CURLcode rc = curl_easy_perform(c);
    const bool written = std::fclose(out) == 0;
    if (rc != CURLE_OK || !written) {
        wxRemoveFile(partial);
        if (sink.overLimit) {
            wxLogVerbose(wxString::FromUTF8("Stažení %s selhalo: soubor je větší než %zu bajtů"), url, maxBytes);
        } else {
            wxLogVerbose(wxString::FromUTF8("Stažení %s selhalo: %s"), url,
                         wxString::FromUTF8(error[0] ? error : curl_easy_strerror(rc)));
        }
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
    return downloadAndStore(cnbUrl() + DAILY_LIST_PATH + text, text + ".txt", DruhListku::DENNI, day, stored);
}

bool jednotnekurzyDownload(int rok, int* stored) {
    if (stored) *stored = 0;
    if (rok < 1 || rok > 9999) return false;
    return downloadAndStore(updateUrl() + wxString::Format("/kurzy/%d.txt", rok), wxString::Format("%d.txt", rok),
                            DruhListku::JEDNOTNY, wxDateTime(31, wxDateTime::Dec, rok), stored);
}

}  // namespace lxutils
