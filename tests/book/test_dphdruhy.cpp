// The VAT classification list: its filter set through the filter's own fields, offering
// switched from the list, sorting by a column and the chooser of one side.
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/modalhook.h>
#include <wx/textctrl.h>

#include <functional>

#include "DphDruhFilter.h"
#include "DphDruhyDialog.h"
#include "booktest.h"
#include "collation.h"

namespace {

// Fills the filter dialog when it would be shown and takes its fields as OK does.
class FillFilter : public wxModalDialogHook {
 public:
    explicit FillFilter(std::function<void(wxDialog*)> fill) : m_fill(std::move(fill)) { Register(); }
    ~FillFilter() override { Unregister(); }

 protected:
    int Enter(wxDialog* dialog) override {
        auto* filter = dynamic_cast<DphDruhFilter*>(dialog);
        EXPECT_NE(filter, nullptr);
        if (!filter) return wxID_CANCEL;
        EXPECT_EQ(filter->GetTitle(), u8("Filtr pro členění DPH"));
        m_fill(filter);
        return filter->save() ? wxID_OK : wxID_CANCEL;
    }
    void Exit(wxDialog*) override {}

 private:
    std::function<void(wxDialog*)> m_fill;
};

int selectText(wxChoice* choice, const wxString& text) {
    const int index = choice->FindString(text);
    EXPECT_NE(index, wxNOT_FOUND) << text;
    choice->SetSelection(index);
    return index;
}

bool czechSorted(const wxArrayString& texts, bool ascending) {
    for (size_t i = 1; i < texts.size(); ++i) {
        const int order = collation::czechCompare(texts[i - 1], texts[i]);
        if (ascending ? order > 0 : order < 0) return false;
    }
    return true;
}

}  // namespace

using DphDruhy = BookTest;

TEST_F(DphDruhy, FilterThroughItsFieldsAndCancelIt) {
    DphDruhyDialog dialog(m_frame);
    const int vse = dialog.list()->GetItemCount();
    EXPECT_EQ(vse, static_cast<int>(m_model->dphdruhy().size()));
    {
        FillFilter fill([](wxDialog* filter) {
            choose(field<wxChoice>(filter, "zkratkashoda"), 1);  // "Obsahuje"
            typeText(filter, "zkratka", "R10,11");
            selectText(field<wxChoice>(filter, "kpp"), "5");
        });
        dialog.filtrovat();
    }
    EXPECT_EQ(listTexts(dialog.list(), 0), wxSplit("R10,11-5|R10,11,43,44-5|R10,11,43,44-5-K", '|'));
    EXPECT_EQ(listTexts(dialog.list(), 2), wxArrayString(3, u8("Uskutečněné")));

    // The filter opens with the conditions in force; the empty values have their own names.
    {
        FillFilter fill([](wxDialog* filter) {
            EXPECT_EQ(field<wxTextCtrl>(filter, "zkratka")->GetValue(), "R10,11");
            typeText(filter, "zkratka", "");
            choose(field<wxChoice>(filter, "kpp"), 0);  // "Vše"
            selectText(field<wxChoice>(filter, "kh"), u8("Nepoužito"));
            selectText(field<wxChoice>(filter, "plneni"), u8("Přijaté"));
        });
        dialog.filtrovat();
    }
    const wxArrayString zkratky = listTexts(dialog.list(), 0);
    EXPECT_EQ(zkratky, wxSplit("R30|R32|R34|R61|R0P", '|'));
    EXPECT_EQ(listTexts(dialog.list(), 5), wxArrayString(zkratky.size(), u8("Nepoužito")));

    dialog.zrusitFiltr();
    EXPECT_EQ(dialog.list()->GetItemCount(), vse);
}

TEST_F(DphDruhy, ContextMenuCommandSwitchesOffering) {
    const int id = m_model->getDphDruhIdByZkratka("R1,2");
    auto offered = [&] {
        for (const auto& d : m_model->dphdruhyNabizenePrijem())
            if (d->id() == id) return true;
        return false;
    };
    ASSERT_TRUE(offered());
    DphDruhyDialog dialog(m_frame);
    dialog.selectId(id);
    dialog.nabizet(id);
    EXPECT_FALSE(offered());
    const long row = dialog.list()->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    ASSERT_GE(row, 0);  // the row stays selected
    EXPECT_EQ(dialog.list()->GetItemText(row, 6), "Ne");
    dialog.nabizet(id);
    EXPECT_TRUE(offered());
}

TEST_F(DphDruhy, HeaderClicksSortAndReverse) {
    DphDruhyDialog dialog(m_frame);
    dialog.sortBy(3);  // "Řádky v přiznání"
    wxArrayString radky = listTexts(dialog.list(), 3);
    EXPECT_EQ(radky[0], "0");
    EXPECT_TRUE(czechSorted(radky, true));
    dialog.sortBy(3);
    radky = listTexts(dialog.list(), 3);
    EXPECT_TRUE(czechSorted(radky, false));
    EXPECT_EQ(radky.Last(), "0");

    dialog.sortBy(6);  // "Nabízet": the offered ones after the others
    const wxArrayString nabizet = listTexts(dialog.list(), 6);
    EXPECT_EQ(nabizet[0], "Ne");
    EXPECT_EQ(nabizet.Last(), "Ano");
}

TEST_F(DphDruhy, ChooserOfOneSideListsOnlyThatSide) {
    DphDruhyDialog vydaje(m_frame, /*chooser=*/true, DphDruhyDialog::VYDAJ);
    const wxArrayString zkratky = listTexts(vydaje.list(), 0);
    EXPECT_NE(zkratky.Index("R40,41"), wxNOT_FOUND);
    EXPECT_EQ(zkratky.Index("R1,2"), wxNOT_FOUND);
    EXPECT_EQ(zkratky.Index("R25-5"), wxNOT_FOUND);
    size_t vydaj = 0;
    for (const auto& d : m_model->dphdruhy()) vydaj += d->vydaj() ? 1 : 0;
    EXPECT_EQ(zkratky.size(), vydaj);
}
