#include "RadekTabulkyDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/sizer.h>

#include "editorgeometry.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const char* const ZAROVNANI[] = {"Vlevo", "Na střed", "Vpravo"};

wxString alignmentName(int alignment) {
    const int i = alignment == wxTEXT_ALIGNMENT_CENTRE ? 1 : alignment == wxTEXT_ALIGNMENT_RIGHT ? 2 : 0;
    return u8(ZAROVNANI[i]);
}

int alignmentOf(const wxString& name) {
    if (name == u8(ZAROVNANI[1])) return wxTEXT_ALIGNMENT_CENTRE;
    if (name == u8(ZAROVNANI[2])) return wxTEXT_ALIGNMENT_RIGHT;
    return wxTEXT_ALIGNMENT_LEFT;
}

constexpr int NEW_CELL_WIDTH = 20;

}  // namespace

RadekTabulkyDialog::RadekTabulkyDialog(wxWindow* parent, TableRowElement& element)
    : PrvekDialog(parent, u8("Řádek tabulky")), m_element(element) {
    m_grid = new wxGrid(this, wxID_ANY, wxDefaultPosition, wxSize(460, 170), wxWANTS_CHARS, "bunky");
    m_grid->CreateGrid(0, 3);
    m_grid->SetColLabelValue(COL_HODNOTA, "Hodnota");
    m_grid->SetColLabelValue(COL_SIRKA, u8("Šířka (mm)"));
    m_grid->SetColLabelValue(COL_ZAROVNANI, u8("Zarovnání"));
    m_grid->SetColSize(COL_HODNOTA, 210);
    m_grid->SetColSize(COL_SIRKA, 90);
    m_grid->SetColSize(COL_ZAROVNANI, 100);
    m_grid->SetRowLabelSize(40);
    m_grid->AppendRows(static_cast<int>(element.cellCount()));
    for (size_t i = 0; i < element.cellCount(); ++i)
        setRow(static_cast<int>(i), element.cellValue(i), i < element.width.size() ? element.width[i] : 0,
               i < element.alignment.size() ? element.alignment[i] : wxTEXT_ALIGNMENT_LEFT);
    if (m_grid->GetNumberRows() > 0) m_grid->SetGridCursor(0, COL_HODNOTA);

    addPair("Pozice (mm):", "x", "y", element.pos, 0, MAX_MM);
    addTextStyle(element.textStyle);
    m_border = addCheck("Orámovat", "oramovat", element.border);
    addLineStyle(element.borderStyle);
    addSectionAndPage(element);
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    auto* pridat = new wxButton(this, wxID_ANY, u8("Přidat buňku"), wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, "pridatBunku");
    auto* smazat = new wxButton(this, wxID_ANY, u8("Smazat buňku"), wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, "smazatBunku");
    pridat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { pridatBunku(); });
    smazat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { smazatBunku(); });
    buttons->Add(pridat);
    buttons->Add(smazat, wxSizerFlags().Border(wxLEFT, 6));
    addField("Buňky:", buttons);
    addPlaceholderButton();
    finish(m_grid);
}

void RadekTabulkyDialog::setRow(int row, const wxString& value, int width, int alignment) {
    m_grid->SetCellValue(row, COL_HODNOTA, value);
    m_grid->SetCellValue(row, COL_SIRKA, wxString::Format("%d", width));
    m_grid->SetCellAlignment(row, COL_SIRKA, wxALIGN_RIGHT, wxALIGN_CENTRE);
    wxArrayString names;
    for (const char* n : ZAROVNANI) names.push_back(u8(n));
    m_grid->SetCellEditor(row, COL_ZAROVNANI, new wxGridCellChoiceEditor(names));
    m_grid->SetCellValue(row, COL_ZAROVNANI, alignmentName(alignment));
}

int RadekTabulkyDialog::currentRow() const {
    const int row = m_grid->GetGridCursorRow();
    return row >= 0 && row < m_grid->GetNumberRows() ? row : -1;
}

void RadekTabulkyDialog::pridatBunku() {
    m_grid->SaveEditControlValue();
    const int at = currentRow() >= 0 ? currentRow() + 1 : m_grid->GetNumberRows();
    m_grid->InsertRows(at);
    setRow(at, wxString(), NEW_CELL_WIDTH, wxTEXT_ALIGNMENT_LEFT);
    m_grid->SetGridCursor(at, COL_HODNOTA);
}

void RadekTabulkyDialog::smazatBunku() {
    const int row = currentRow();
    if (row < 0) return;
    if (m_grid->IsCellEditControlEnabled()) m_grid->DisableCellEditControl();
    m_grid->DeleteRows(row);
    if (m_grid->GetNumberRows() > 0) m_grid->SetGridCursor(std::min(row, m_grid->GetNumberRows() - 1), COL_HODNOTA);
}

void RadekTabulkyDialog::insertPlaceholder(const wxString& key) {
    int row = currentRow();
    if (row < 0) {
        pridatBunku();
        row = currentRow();
    }
    m_grid->SaveEditControlValue();
    m_grid->SetCellValue(row, COL_HODNOTA, m_grid->GetCellValue(row, COL_HODNOTA) + key);
}

bool RadekTabulkyDialog::save() {
    m_grid->SaveEditControlValue();
    TableRowElement e = m_element;
    if (m_grid->GetNumberRows() == 0) {
        refused(u8("Řádek tabulky musí mít alespoň jednu buňku."), m_grid);
        return false;
    }
    e.value.clear();
    e.width.clear();
    e.alignment.clear();
    for (int row = 0; row < m_grid->GetNumberRows(); ++row) {
        long width = 0;
        if (!editorgeo::parseWholeNumber(m_grid->GetCellValue(row, COL_SIRKA), &width) || width < 1 || width > MAX_MM) {
            m_grid->SetGridCursor(row, COL_SIRKA);
            refused(wxString::Format(u8("Do pole „Šířka %d. buňky“ zadejte celé číslo od 1 do %d."), row + 1, MAX_MM),
                    m_grid);
            return false;
        }
        e.addCellValue(m_grid->GetCellValue(row, COL_HODNOTA));
        e.addCellWidth(static_cast<int>(width));
        e.addCellAlignment(alignmentOf(m_grid->GetCellValue(row, COL_ZAROVNANI)));
    }
    if (!readPair("x", "y", &e.pos) || !readLineStyle(&e.borderStyle) || !readSectionAndPage(e)) return false;
    e.textStyle = textStyle();
    e.border = m_border->GetValue();
    m_element = e;
    return true;
}
