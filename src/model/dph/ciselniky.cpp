// Reading the code lists in both of the service's formats and picking the rows valid on a day.
#include "ciselniky.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/strconv.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <memory>

#include "clock.h"
#include "collation.h"
#include "lxutils.h"

namespace lxutils {

namespace {

// No list comes near this; a larger file is not one.
const size_t MAX_CISELNIK_BYTES = 64 * 1024 * 1024;

struct XmlDocDeleter {
    void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
};

wxString fromXml(const xmlChar* text) { return text ? wxString::FromUTF8(reinterpret_cast<const char*>(text)) : ""; }

std::vector<CiselnikRadek> parseXml(const std::string& bytes) {
    std::vector<CiselnikRadek> rows;
    if (bytes.size() > static_cast<size_t>(INT_MAX)) return rows;
    // No network and no entity expansion: the file is data from outside.
    std::unique_ptr<xmlDoc, XmlDocDeleter> doc(
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), "ciselnik.xml", nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE));
    if (!doc) return rows;
    const xmlNode* root = xmlDocGetRootElement(doc.get());
    // An error answer has the root "Chyby"; anything but "Ciselnik" is not a list.
    if (!root || xmlStrcmp(root->name, BAD_CAST "Ciselnik") != 0) return rows;
    for (const xmlNode* node = root->children; node; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) continue;
        CiselnikRadek row;
        for (const xmlAttr* attr = node->properties; attr; attr = attr->next) {
            xmlChar* value = xmlNodeListGetString(doc.get(), attr->children, 1);
            row[reinterpret_cast<const char*>(attr->name)] = fromXml(value);
            xmlFree(value);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

// A line of the text format split at "|"; the text after the last "|" is not a field.
std::vector<std::string> pipeFields(const std::string& line) {
    std::vector<std::string> fields;
    size_t start = 0;
    for (size_t bar = line.find('|'); bar != std::string::npos; bar = line.find('|', start)) {
        fields.push_back(line.substr(start, bar - start));
        start = bar + 1;
    }
    return fields;
}

bool isColumnName(const std::string& name) {
    if (name.empty()) return false;
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    });
}

// The text lists are UTF-8; an older export in the Czech Windows code page is read too.
wxString decodeField(const std::string& field) {
    if (field.empty()) return wxString();
    wxString text = wxString::FromUTF8(field.data(), field.size());
    if (text.empty()) text = wxString(field.data(), wxCSConv("cp1250"), field.size());
    return text;
}

std::vector<CiselnikRadek> parsePipe(const std::string& bytes) {
    std::vector<CiselnikRadek> rows;
    std::vector<std::string> columns;
    size_t start = 0;
    while (start < bytes.size()) {
        size_t end = bytes.find('\n', start);
        if (end == std::string::npos) end = bytes.size();
        std::string line = bytes.substr(start, end - start);
        start = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty()) continue;
        // Every complete line ends with "|"; one without it was cut off.
        if (line.back() != '|') {
            if (columns.empty()) return rows;
            continue;
        }
        std::vector<std::string> fields = pipeFields(line);
        if (columns.empty()) {
            if (!std::all_of(fields.begin(), fields.end(), isColumnName)) return rows;
            columns = std::move(fields);
            continue;
        }
        if (fields.size() != columns.size()) continue;
        CiselnikRadek row;
        for (size_t i = 0; i < columns.size(); ++i) row[columns[i]] = decodeField(fields[i]);
        rows.push_back(std::move(row));
    }
    return rows;
}

wxString value(const CiselnikRadek& row, const char* column) {
    const auto it = row.find(column);
    return it == row.end() ? wxString() : it->second.Strip(wxString::both);
}

// A validity date as ISO text, empty for an open end. The lists write ISO dates; a day
// written "31.12.2012" is read too, and anything else counts as open.
wxString isoOf(const wxString& text) {
    if (text.empty()) return text;
    wxDateTime day;
    wxString::const_iterator end;
    if (day.ParseISODate(text)) return day.FormatISODate();
    if (day.ParseFormat(text, "%d.%m.%Y", &end) && end == text.end()) return day.FormatISODate();
    return wxString();
}

const char* const VALIDITY[][2] = {{"d_pocpl", "d_ukopl"}, {"d_vzniku", "d_zaniku"}};

wxString startOf(const CiselnikRadek& row) {
    for (const auto& pair : VALIDITY) {
        const wxString from = isoOf(value(row, pair[0]));
        if (!from.empty()) return from;
    }
    return wxString();
}

wxDateTime dayOrToday(const wxDateTime& datum) { return datum.IsValid() ? datum.GetDateOnly() : today(); }

bool toInt(const wxString& text, int* number) {
    long n = 0;
    if (text.empty() || !text.ToLong(&n) || n < INT_MIN || n > INT_MAX) return false;
    *number = static_cast<int>(n);
    return true;
}

// The rows of a list valid on the day, one per value of `key` when given (the latest begun
// when several are valid at once).
std::vector<CiselnikRadek> platneRadky(const char* file, const wxDateTime& datum, const wxString& path,
                                       const char* key) {
    const wxDateTime day = dayOrToday(datum);
    std::vector<CiselnikRadek> rows;
    std::map<wxString, size_t> byKey;
    for (CiselnikRadek& row : readCiselnik(path.empty() ? ciselnikPath(file) : path)) {
        if (!isPlatny(row, day)) continue;
        if (!key) {
            rows.push_back(std::move(row));
            continue;
        }
        const wxString code = value(row, key);
        if (code.empty()) continue;
        const auto found = byKey.find(code);
        if (found == byKey.end()) {
            byKey[code] = rows.size();
            rows.push_back(std::move(row));
        } else if (startOf(row) > startOf(rows[found->second])) {
            rows[found->second] = std::move(row);
        }
    }
    return rows;
}

template <class Row>
void sortByName(std::vector<Row>& rows, wxString Row::*name, wxString Row::*then = nullptr) {
    std::vector<std::pair<std::string, Row>> keyed;
    keyed.reserve(rows.size());
    for (Row& row : rows) {
        std::string key = collation::czechSortKey(row.*name);
        if (then) key += '\0' + std::string((row.*then).utf8_str());
        keyed.emplace_back(std::move(key), std::move(row));
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    rows.clear();
    for (auto& k : keyed) rows.push_back(std::move(k.second));
}

// The name of `code` in a list: the row valid today, else the latest begun row of that code.
wxString nazevKodu(const char* file, const char* key, const char* name, int code) {
    const wxDateTime day = today();
    const CiselnikRadek* best = nullptr;
    bool bestPlatny = false;
    const std::vector<CiselnikRadek> rows = readCiselnik(ciselnikPath(file));
    for (const CiselnikRadek& row : rows) {
        int c = 0;
        if (!toInt(value(row, key), &c) || c != code) continue;
        const bool platny = isPlatny(row, day);
        if (!best || (platny && !bestPlatny) || (platny == bestPlatny && startOf(row) > startOf(*best))) {
            best = &row;
            bestPlatny = platny;
        }
    }
    return best ? value(*best, name) : wxString();
}

}  // namespace

std::vector<CiselnikRadek> parseCiselnik(const std::string& bytes) {
    size_t start = 0;
    if (bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) start = 3;
    while (start < bytes.size() && std::isspace(static_cast<unsigned char>(bytes[start]))) ++start;
    if (start >= bytes.size()) return {};
    return bytes[start] == '<' ? parseXml(bytes) : parsePipe(bytes.substr(start));
}

std::vector<CiselnikRadek> readCiselnik(const wxString& path) {
    if (!wxFileName::FileExists(path)) return {};
    wxFFile file(path, "rb");
    if (!file.IsOpened()) return {};
    const wxFileOffset length = file.Length();
    if (length <= 0 || static_cast<unsigned long long>(length) > MAX_CISELNIK_BYTES) return {};
    std::string bytes(static_cast<size_t>(length), '\0');
    if (file.Read(&bytes[0], bytes.size()) != bytes.size()) return {};
    return parseCiselnik(bytes);
}

bool isPlatny(const CiselnikRadek& radek, const wxDateTime& datum) {
    const wxString day = dayOrToday(datum).FormatISODate();
    for (const auto& pair : VALIDITY) {
        const wxString from = isoOf(value(radek, pair[0]));
        const wxString to = isoOf(value(radek, pair[1]));
        if (!from.empty() && from > day) return false;
        if (!to.empty() && to < day) return false;
    }
    return true;
}

wxString ciselnikPath(const wxString& file) { return wxFileName(dataDir(), file).GetFullPath(); }

std::vector<Okec> readOkec(const wxDateTime& datum, const wxString& path) {
    std::vector<Okec> list;
    for (const CiselnikRadek& row : platneRadky("okec.xml", datum, path, "c_nace")) {
        Okec okec;
        if (!toInt(value(row, "c_nace"), &okec.c_nace)) continue;
        okec.naz_nace = value(row, "naz_nace");
        list.push_back(okec);
    }
    std::sort(list.begin(), list.end(), [](const Okec& a, const Okec& b) { return a.c_nace < b.c_nace; });
    return list;
}

std::vector<Ufo> readUfo(const wxDateTime& datum, const wxString& path) {
    std::vector<Ufo> list;
    for (const CiselnikRadek& row : platneRadky("ufo.xml", datum, path, "c_ufo")) {
        Ufo ufo;
        if (!toInt(value(row, "c_ufo"), &ufo.c_ufo)) continue;
        ufo.nazu_ufo = value(row, "nazu_ufo");
        list.push_back(ufo);
    }
    sortByName(list, &Ufo::nazu_ufo);
    return list;
}

std::vector<Pracufo> readPracufo(const wxDateTime& datum, const wxString& path) {
    std::vector<Pracufo> list;
    for (const CiselnikRadek& row : platneRadky("pracufo.xml", datum, path, "c_pracufo")) {
        Pracufo prac;
        if (!toInt(value(row, "c_pracufo"), &prac.c_pracufo)) continue;
        prac.nazu_pracufo = value(row, "nazu_pracufo");
        if (!toInt(value(row, "c_ufo"), &prac.c_ufo)) prac.c_ufo = 0;
        list.push_back(prac);
    }
    sortByName(list, &Pracufo::nazu_pracufo);
    return list;
}

std::vector<Obec> readObce(const wxDateTime& datum, const wxString& path) {
    std::vector<Obec> list;
    for (const CiselnikRadek& row : platneRadky("obce.xml", datum, path, nullptr)) {
        Obec obec;
        obec.naz_obce = value(row, "naz_obce");
        if (obec.naz_obce.empty()) continue;
        obec.psc = value(row, "psc");
        if (!toInt(value(row, "c_fu"), &obec.c_fu)) obec.c_fu = 0;
        list.push_back(obec);
    }
    sortByName(list, &Obec::naz_obce, &Obec::psc);
    return list;
}

std::vector<Zeme> readZeme(const wxDateTime& datum, const wxString& path) {
    std::vector<Zeme> list;
    for (const CiselnikRadek& row : platneRadky("zeme.xml", datum, path, "kod2")) {
        Zeme zeme;
        zeme.kod2 = value(row, "kod2");
        zeme.kod2_eu = value(row, "kod2_eu");
        if (zeme.kod2_eu.empty()) zeme.kod2_eu = zeme.kod2;
        zeme.naz_zeme_c25 = value(row, "naz_zeme_c25");
        zeme.naz_zeme_c60 = value(row, "naz_zeme_c60");
        list.push_back(zeme);
    }
    std::sort(list.begin(), list.end(), [](const Zeme& a, const Zeme& b) { return a.kod2 < b.kod2; });
    return list;
}

wxString nazevUfo(int c_ufo) { return nazevKodu("ufo.xml", "c_ufo", "nazu_ufo", c_ufo); }

wxString nazevPracufo(int c_pracufo) { return nazevKodu("pracufo.xml", "c_pracufo", "nazu_pracufo", c_pracufo); }

wxString nazevOkec(int c_nace) { return nazevKodu("okec.xml", "c_nace", "naz_nace", c_nace); }

}  // namespace lxutils
