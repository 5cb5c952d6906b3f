#pragma once
// The address fields of the employer's and the employee's screens, which
// share the rules of leaving a field.
#include "platform/Control.h"

namespace fisc {

// Leaving an address field: the postal code and the sector become a clean
// number (a blank one "0"), any other field goes to upper case; then the
// sector rule: a sector lies between 1 and 6, and only in BUCURESTI, written
// exactly so.
void IesireDinAdresa(Control& camp, bool numeric, const Control& localitate, Control& sector);

}  // namespace fisc
