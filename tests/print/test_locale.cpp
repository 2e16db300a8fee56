// wxWidgets' own texts in Czech: the preview frame of a print speaks Czech even when the
// system locale is C, as it is in the tests.
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/prntbase.h>
#include <wx/translation.h>

#include "czechlocale.h"
#include "printtest.h"
#include "tableprint.h"

namespace {

// Labels of every button inside `window`, at any depth.
void buttonLabels(wxWindow* window, wxArrayString* labels) {
    for (wxWindow* child : window->GetChildren()) {
        if (auto* button = dynamic_cast<wxButton*>(child)) labels->Add(button->GetLabel());
        buttonLabels(child, labels);
    }
}

}  // namespace

TEST(CzechLocale, WxWidgetsTextsAndThePreviewFrameAreCzechUnderTheCLocale) {
    std::unique_ptr<wxLocale> locale = initCzechLocale(wxArrayString());
    ASSERT_TRUE(locale);
    ASSERT_NE(wxTranslations::Get(), nullptr);
    EXPECT_EQ(wxTranslations::Get()->GetBestTranslation("wxstd-3.2"), "cs");
    EXPECT_EQ(wxGetTranslation("Close"), u8("Zavřít"));
    EXPECT_EQ(wxString::Format(wxGetTranslation("Page %d of %d"), 1, 7), "Strana 1 z 7");

    Table table;
    table.addCellToHeader("Text");
    TablePrint print(nullptr, u8("Náhled"));
    print.setTable(&table);
    wxPreviewFrame* frame = print.Preview();
    ASSERT_NE(frame, nullptr);
    wxArrayString labels;
    buttonLabels(frame, &labels);
    EXPECT_NE(labels.Index(u8("&Zavřít")), wxNOT_FOUND) << wxJoin(labels, '|');
    EXPECT_EQ(labels.Index("&Close"), wxNOT_FOUND);
    frame->Destroy();
    wxTheApp->Yield(true);
}
