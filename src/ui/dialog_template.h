// Dialog templates in memory.
#pragma once

namespace qx {

// Takes the "?" button out of a dialog template, plain or extended, that is about to be used. Null
// is ignored.
void ClearContextHelp(void* dialogTemplate);

}  // namespace qx
