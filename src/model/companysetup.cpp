#include "companysetup.h"

#include "dbmodel.h"
#include "clock.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace companysetup {

wxString placeholderKey() {
    wxString key = "ABC_0";
    for (int i = 1; lxSettings::instance()->firmaExists(key); ++i) key = wxString::Format("ABC_%d", i);
    return key;
}

bool createPlaceholderCompany(DbModel& model, const wxString& path) {
    if (!model.newDatabase(path)) return false;
    model.addAdresa(Adresa(1, "", "", "", "", ""));
    const wxString key = placeholderKey();
    const wxString empty;
    // The name is the part before the last "_", the IČ the part after the first one.
    model.setFirma(Firma(key.BeforeLast('_'), key.AfterFirst('_'), empty, empty, false, false, empty, empty, empty,
                         empty, empty, 1));
    model.addObdobi(Obdobi(lxutils::today().GetYear(), true));
    model.fillData();
    return model.firma().isValid();
}

} // namespace companysetup
