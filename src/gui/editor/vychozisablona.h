// The invoice template that "Nový" starts from: supplier and customer blocks, dates and
// symbols, the item table with its heading, the VAT recap, the total and the QR payment code.
#pragma once

#include "document.h"

Document vychoziSablona();
