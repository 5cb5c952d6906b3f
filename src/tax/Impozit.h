#pragma once
// The one place where a taxable amount becomes a tax: the lookup in the tax
// table of a month, 13 for the annual tax.
#include "params/Impozitar.h"

namespace fisc {

// The tax in whole lei of `suma` by the table in force for `luna`. A negative
// `suma` is set to 0 in the caller's variable too. The base counts in whole
// thousands only. Failures: 9 when the walk leaves row 129, 94 when the row
// it stops on has a null cell (a month without any group, a missing table).
double ImpozitLuna(short& luna, double& suma, const TabelImpozit& tabel);

}  // namespace fisc
