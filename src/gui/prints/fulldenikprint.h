// The money journal with all its columns (one per journal column of the company), too wide
// for a sheet: the columns are cut into groups that fit and printed on successive pages.
#pragma once

#include <vector>

#include "splittableprint.h"
#include "table.h"

class FullDenikPrint : public SplitTablePrint {
 public:
    // `sloupce` are the column captions, each row holds one text per column; columns whose
    // caption is in `castky` hold amounts and are right-aligned.
    FullDenikPrint(wxWindow* parent, const wxString& firma, int rok, const wxArrayString& sloupce,
                   const std::vector<wxArrayString>& radky, const std::vector<int>& castky = {});

    int paginate() override;

 private:
    Table m_denik;
};
