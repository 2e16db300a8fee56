#include "podani.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlschemas.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/regex.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <map>

#include "lxutils.h"
#include "zdroje.h"

namespace {

const xmlChar* x(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

wxString fromXml(const xmlChar* text) {
    return text ? wxString::FromUTF8(reinterpret_cast<const char*>(text)) : wxString();
}

// libxml2 would print parse errors on stderr; the callers report them themselves.
void ticho(void*, const char*, ...) {}

struct XmlDoc {
    xmlDocPtr doc = nullptr;
    ~XmlDoc() {
        if (doc) xmlFreeDoc(doc);
    }
};

}  // namespace

Podani::Podani(const wxString& element, std::vector<VetaDef> definice, const wxString& xsd)
    : m_element(element), m_definice(std::move(definice)), m_xsd(xsd) {
    clearData();
}

const VetaDef* Podani::definice(const wxString& name) const {
    for (const VetaDef& def : m_definice) {
        if (name == def.name) return &def;
    }
    return nullptr;
}

Veta Podani::novaVeta(const VetaDef& def) const {
    std::vector<Atribut> atributy;
    atributy.reserve(def.atributy.size());
    for (const auto& [name, typ] : def.atributy) atributy.push_back({name, wxString(), typ});
    return Veta(def.name, std::move(atributy));
}

void Podani::clearData() {
    m_vety.clear();
    for (const VetaDef& def : m_definice) {
        if (!def.opakovana) m_vety.push_back(novaVeta(def));
    }
}

bool Podani::isEmpty() const {
    for (const Veta& v : m_vety) {
        if (!v.isEmpty()) return false;
    }
    return true;
}

Veta* Podani::veta(const wxString& name, int index) {
    int n = 0;
    for (Veta& v : m_vety) {
        if (v.name() == name && n++ == index) return &v;
    }
    return nullptr;
}

const Veta* Podani::veta(const wxString& name, int index) const { return const_cast<Podani*>(this)->veta(name, index); }

int Podani::pocetVet(const wxString& name) const {
    int n = 0;
    for (const Veta& v : m_vety) n += v.name() == name;
    return n;
}

int Podani::addVeta(const wxString& name) {
    const VetaDef* def = definice(name);
    if (!def) return -1;
    // After the last record whose kind comes no later in the schema's order.
    size_t poradi = static_cast<size_t>(def - m_definice.data());
    auto pos = m_vety.begin();
    for (auto it = m_vety.begin(); it != m_vety.end(); ++it) {
        const VetaDef* d = definice(it->name());
        if (d && static_cast<size_t>(d - m_definice.data()) <= poradi) pos = it + 1;
    }
    m_vety.insert(pos, novaVeta(*def));
    return pocetVet(name) - 1;
}

void Podani::removeVeta(const wxString& name, int index) {
    int n = 0;
    for (auto it = m_vety.begin(); it != m_vety.end(); ++it) {
        if (it->name() == name && n++ == index) {
            m_vety.erase(it);
            return;
        }
    }
}

void Podani::setValue(const wxString& name, const wxString& atribut, const wxString& value, int index) {
    const VetaDef* def = definice(name);
    if (!def || index < 0) return;
    if (def->opakovana) {
        while (pocetVet(name) <= index) addVeta(name);
    }
    Veta* v = veta(name, index);
    Atribut* a = v ? v->find(atribut) : nullptr;
    if (a) a->value = value;
}

void Podani::setAtributValue(const wxString& veta, const wxString& atribut, const wxString& value, int index) {
    setValue(veta, atribut, value, index);
}

void Podani::setAtributValue(const wxString& veta, const wxString& atribut, int value, int index) {
    setValue(veta, atribut, wxString::Format("%d", value), index);
}

void Podani::setAtributValue(const wxString& veta, const wxString& atribut, double value, int index) {
    setValue(veta, atribut, vetaformat::cislo(value, 2), index);
}

void Podani::setAtributValue(const wxString& veta, const wxString& atribut, const wxDateTime& value, int index) {
    setValue(veta, atribut, vetaformat::datum(value), index);
}

wxString Podani::atributValue(const wxString& name, const wxString& atribut, int index) const {
    const Veta* v = veta(name, index);
    const Atribut* a = v ? v->find(atribut) : nullptr;
    return a ? a->value : wxString();
}

int Podani::atributValueInt(const wxString& veta, const wxString& atribut, int index) const {
    long value = 0;
    return atributValue(veta, atribut, index).ToLong(&value) ? static_cast<int>(value) : 0;
}

double Podani::atributValueDouble(const wxString& veta, const wxString& atribut, int index) const {
    return vetaformat::parseCislo(atributValue(veta, atribut, index));
}

wxDateTime Podani::atributValueDatum(const wxString& veta, const wxString& atribut, int index) const {
    return vetaformat::parseDatum(atributValue(veta, atribut, index));
}

AtributTyp Podani::atributType(const wxString& veta, const wxString& atribut) const {
    if (const VetaDef* def = definice(veta)) {
        for (const auto& [name, typ] : def->atributy) {
            if (atribut == name) return typ;
        }
    }
    return AtributTyp::Text;
}

std::vector<wxString> Podani::atributy(const wxString& veta) const {
    std::vector<wxString> names;
    if (const VetaDef* def = definice(veta)) {
        for (const auto& entry : def->atributy) names.emplace_back(entry.first);
    }
    return names;
}

std::string Podani::createXml() const {
    XmlDoc d;
    d.doc = xmlNewDoc(x("1.0"));
    xmlNodePtr root = xmlNewNode(nullptr, x("Pisemnost"));
    xmlDocSetRootElement(d.doc, root);
    xmlNewProp(root, x("nazevSW"), x("evida"));
    xmlNewProp(root, x("verzeSW"), x(lxutils::EVIDA_VERSION));
    xmlNodePtr podani = xmlNewChild(root, nullptr, x(m_element.utf8_str().data()), nullptr);
    for (const Veta& v : m_vety) {
        // A record without a value says nothing, and a quick answer to a summons must carry no
        // section of the control statement at all: empty records are not written.
        if (!v.isForXml() || v.isEmpty()) continue;
        xmlNodePtr node = xmlNewChild(podani, nullptr, x(v.name().utf8_str().data()), nullptr);
        for (const Atribut& a : v.atributy()) {
            if (!a.value.empty() && a.typ != AtributTyp::Pomocny) xmlNewProp(node, x(a.name.utf8_str().data()), x(a.value.utf8_str().data()));
        }
    }
    xmlChar* buffer = nullptr;
    int size = 0;
    xmlDocDumpFormatMemoryEnc(d.doc, &buffer, &size, "UTF-8", 1);
    std::string text(reinterpret_cast<const char*>(buffer), static_cast<size_t>(size));
    xmlFree(buffer);
    return text;
}

wxString Podani::saveToString() const { return wxString::FromUTF8(createXml()); }

wxString Podani::validate() const {
    return lxutils::validateXml(createXml(), lxutils::xsdDir() + wxFILE_SEP_PATH + m_xsd);
}

bool Podani::saveToXml(const wxString& path, wxString* error) const {
    const std::string xml = createXml();
    const wxString chyby = lxutils::validateXml(xml, lxutils::xsdDir() + wxFILE_SEP_PATH + m_xsd);
    if (!chyby.empty()) {
        if (error) *error = wxString::FromUTF8("Soubor nebyl uložen, podání neodpovídá schématu finanční správy:\n") + chyby;
        return false;
    }
    // Written beside the target first, so a failed write leaves an older file whole.
    const wxString temp = path + ".tmp";
    wxFFile file(temp, "wb");
    const bool written = file.IsOpened() && file.Write(xml.data(), xml.size()) == xml.size() && file.Close();
    if (!written || !wxRenameFile(temp, path, true)) {
        wxRemoveFile(temp);
        if (error) *error = wxString::Format(wxString::FromUTF8("Nelze zapsat soubor %s"), path);
        return false;
    }
    return true;
}

bool Podani::readFromString(const wxString& text, wxString* error) {
    const wxScopedCharBuffer utf8 = text.utf8_str();
    XmlDoc d;
    d.doc = xmlReadMemory(utf8.data(), static_cast<int>(utf8.length()), nullptr, "UTF-8",
                          XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    xmlNodePtr root = d.doc ? xmlDocGetRootElement(d.doc) : nullptr;
    if (!root || fromXml(root->name) != "Pisemnost") {
        if (error) *error = wxString::FromUTF8("Soubor není podání pro finanční správu (chybí element Pisemnost)");
        return false;
    }
    xmlNodePtr podani = nullptr;
    for (xmlNodePtr n = root->children; n; n = n->next) {
        if (n->type == XML_ELEMENT_NODE && fromXml(n->name) == m_element) podani = n;
    }
    if (!podani) {
        if (error) *error = wxString::Format(wxString::FromUTF8("Soubor neobsahuje podání %s"), m_element);
        return false;
    }
    clearData();
    for (xmlNodePtr n = podani->children; n; n = n->next) {
        if (n->type != XML_ELEMENT_NODE) continue;
        const wxString name = fromXml(n->name);
        const VetaDef* def = definice(name);
        if (!def) continue;  // a record of a newer form than this program knows
        const int index = def->opakovana ? addVeta(name) : 0;
        for (xmlAttrPtr a = n->properties; a; a = a->next) {
            xmlChar* value = xmlNodeListGetString(d.doc, a->children, 1);
            setValue(name, fromXml(a->name), fromXml(value), index);
            xmlFree(value);
        }
    }
    return true;
}

bool Podani::readFromXml(const wxString& path, wxString* error) {
    wxFFile file(path, "rb");
    wxString text;
    if (!file.IsOpened() || !file.ReadAll(&text, wxConvUTF8)) {
        if (error) *error = wxString::Format(wxString::FromUTF8("Nelze přečíst soubor %s"), path);
        return false;
    }
    return readFromString(text, error);
}

namespace lxutils {

wxString xsdDir() { return zdroje::xsdDir(); }

namespace {

// One complaint of the validator in Czech: which record, which attribute, what is wrong.
wxString ceskaChyba(const xmlError* e) {
    wxString message = wxString::FromUTF8(e->message ? e->message : "").Trim();
    const auto* node = static_cast<const xmlNode*>(e->node);
    wxString veta = node && node->type == XML_ELEMENT_NODE ? fromXml(node->name) : wxString();
    wxString atribut;
    wxRegEx prefix("^Element '([^']+)'(, attribute '([^']+)')?: ");
    if (prefix.Matches(message)) {
        veta = prefix.GetMatch(message, 1);
        atribut = prefix.GetMatch(message, 3);
        message = message.Mid(prefix.GetMatch(message, 0).length());
    }
    wxString co;
    wxRegEx missing("The attribute '([^']+)' is required but missing");
    wxRegEx notAllowed("The attribute '([^']+)' is not allowed");
    wxRegEx maxLength("maximum length of '([0-9]+)'");
    wxRegEx value("^'([^']*)' is not a valid value");
    if (missing.Matches(message)) {
        atribut = missing.GetMatch(message, 1);
        co = wxString::FromUTF8("chybí povinný údaj");
    } else if (notAllowed.Matches(message)) {
        atribut = notAllowed.GetMatch(message, 1);
        co = wxString::FromUTF8("údaj není ve formuláři povolen");
    } else if (message.Contains("[facet 'maxLength']") && maxLength.Matches(message)) {
        co = wxString::Format(wxString::FromUTF8("text je delší než %s znaků"), maxLength.GetMatch(message, 1));
    } else if (message.Contains("[facet 'totalDigits']")) {
        co = wxString::FromUTF8("číslo má příliš mnoho číslic");
    } else if (message.Contains("[facet 'fractionDigits']")) {
        co = wxString::FromUTF8("číslo má příliš mnoho desetinných míst");
    } else if (message.Contains("[facet 'enumeration']") || message.Contains("[facet 'pattern']") ||
               value.Matches(message)) {
        co = value.Matches(message)
                 ? wxString::Format(wxString::FromUTF8("hodnota '%s' není přípustná"), value.GetMatch(message, 1))
                 : wxString::FromUTF8("hodnota není přípustná");
    } else if (message.Contains("This element is not expected")) {
        co = wxString::FromUTF8("věta zde není očekávána");
    } else if (message.Contains("Missing child element")) {
        co = wxString::FromUTF8("chybí povinná věta");
    } else {
        co = message;
    }
    wxString kde = wxString::Format(wxString::FromUTF8("Věta %s"), veta);
    if (!atribut.empty()) kde += wxString::Format(wxString::FromUTF8(", údaj %s"), atribut);
    return kde + ": " + co;
}

void sberChyb(void* data, xmlErrorPtr error) {
    if (error) static_cast<wxArrayString*>(data)->Add(ceskaChyba(error));
}

struct Schema {
    xmlSchemaPtr schema = nullptr;
    ~Schema() {
        if (schema) xmlSchemaFree(schema);
    }
};

xmlSchemaPtr nactiSchema(const wxString& path) {
    static std::map<wxString, Schema> schemas;
    auto found = schemas.find(path);
    if (found != schemas.end()) return found->second.schema;
    xmlSetGenericErrorFunc(nullptr, ticho);
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(path.utf8_str());
    xmlSchemaPtr schema = parser ? xmlSchemaParse(parser) : nullptr;
    if (parser) xmlSchemaFreeParserCtxt(parser);
    xmlSetGenericErrorFunc(nullptr, nullptr);
    if (schema) schemas[path].schema = schema;
    return schema;
}

}  // namespace

wxString validateXml(const std::string& xml, const wxString& xsdPath) {
    xmlSchemaPtr schema = nactiSchema(xsdPath);
    if (!schema) {
        return wxString::Format(wxString::FromUTF8("Nelze načíst schéma finanční správy %s"), xsdPath);
    }
    XmlDoc d;
    d.doc = xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, "UTF-8",
                          XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (!d.doc) return wxString::FromUTF8("Podání není platné XML");
    wxArrayString chyby;
    xmlSchemaValidCtxtPtr ctxt = xmlSchemaNewValidCtxt(schema);
    xmlSchemaSetValidStructuredErrors(ctxt, sberChyb, &chyby);
    const int result = xmlSchemaValidateDoc(ctxt, d.doc);
    xmlSchemaFreeValidCtxt(ctxt);
    if (result != 0 && chyby.empty()) chyby.Add(wxString::FromUTF8("Podání neodpovídá schématu"));
    return wxJoin(chyby, '\n', '\0');
}

}  // namespace lxutils
