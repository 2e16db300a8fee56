// An electronic filing to the tax administration (the VAT return, the control statement, the
// EC sales list): its records in the order of the official schema, the XML file the tax
// administration accepts (root "Pisemnost" naming this program, one element for the filing,
// one element a record with its non-empty attributes), reading such a file back, and checking
// it against the official schema before it leaves the program.
#pragma once

#include <wx/string.h>

#include <memory>
#include <vector>

#include "veta.h"

// One record kind of a filing: its attributes in the schema's order, and whether the filing
// may hold it more than once (attachments, the control statement's document rows, …).
struct VetaDef {
    const char* name;
    bool opakovana;
    std::vector<std::pair<const char*, AtributTyp>> atributy;
};

class Podani {
 public:
    // `element` is the filing's element ("DPHDP3"); `definice` every record kind in the order
    // the schema wants them; `xsd` the schema's file name in the schema directory.
    Podani(const wxString& element, std::vector<VetaDef> definice, const wxString& xsd);
    virtual ~Podani() = default;

    const wxString& element() const { return m_element; }
    const std::vector<Veta>& vety() const { return m_vety; }

    // Values by record name, attribute name and the record's index among the records of that
    // name (0 for records that occur once). Setting a value of a repeated record that does
    // not exist yet adds the records up to it.
    void setAtributValue(const wxString& veta, const wxString& atribut, const wxString& value, int index = 0);
    void setAtributValue(const wxString& veta, const wxString& atribut, int value, int index = 0);
    // Doubles keep at most two decimals: amounts are stored already rounded to whole crowns,
    // coefficients are percentages with two decimal places.
    void setAtributValue(const wxString& veta, const wxString& atribut, double value, int index = 0);
    void setAtributValue(const wxString& veta, const wxString& atribut, const wxDateTime& value, int index = 0);
    wxString atributValue(const wxString& veta, const wxString& atribut, int index = 0) const;
    int atributValueInt(const wxString& veta, const wxString& atribut, int index = 0) const;
    double atributValueDouble(const wxString& veta, const wxString& atribut, int index = 0) const;
    wxDateTime atributValueDatum(const wxString& veta, const wxString& atribut, int index = 0) const;
    AtributTyp atributType(const wxString& veta, const wxString& atribut) const;
    // The attribute names of a record kind, in order.
    std::vector<wxString> atributy(const wxString& veta) const;
    // The number of records of that name.
    int pocetVet(const wxString& veta) const;
    // Adds an empty record of a repeated kind after the others of its kind; returns its index.
    int addVeta(const wxString& veta);
    void removeVeta(const wxString& veta, int index);

    // True when no attribute of any record has a value.
    bool isEmpty() const;
    // Empties every attribute and drops the repeated records.
    void clearData();

    // The XML text (UTF-8).
    std::string createXml() const;
    wxString saveToString() const;
    // Validates the XML against the official schema and writes it; on a failure writes
    // nothing and puts the reasons in Czech into *error.
    bool saveToXml(const wxString& path, wxString* error = nullptr) const;
    // Empty when the filing is valid, otherwise the schema's complaints in Czech, one a line.
    wxString validate() const;
    // Reads a filing of this kind. A text that is not such a filing leaves the object as it
    // was and puts the reason into *error.
    bool readFromString(const wxString& text, wxString* error = nullptr);
    bool readFromXml(const wxString& path, wxString* error = nullptr);

 private:
    Veta* veta(const wxString& name, int index);
    const Veta* veta(const wxString& name, int index) const;
    const VetaDef* definice(const wxString& name) const;
    Veta novaVeta(const VetaDef& def) const;
    void setValue(const wxString& veta, const wxString& atribut, const wxString& value, int index);

    wxString m_element;
    std::vector<VetaDef> m_definice;
    wxString m_xsd;
    std::vector<Veta> m_vety;
};

namespace lxutils {
// The directory of the official schemas installed with the program.
wxString xsdDir();
// Validates an XML text against a schema file; empty when valid, else the complaints in
// Czech, one a line, naming the record and the attribute.
wxString validateXml(const std::string& xml, const wxString& xsdPath);
}  // namespace lxutils
