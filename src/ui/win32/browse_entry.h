// The entries of the list of files: what the list box holds and draws.
#pragma once

#include "ui/browse_list.h"

#include <qxutility/ui/browse_box.h>

#include <string>
#include <vector>

namespace qx::win32 {

// Empties the list box and fills it anew. The box gets its entries in the order given; they are
// deleted when it says that it drops them (WM_DELETEITEM).
void FillEntries(HWND list, const std::vector<ListedFile>& files);
// The entry at an index; null when there is none.
const CBrowseEntry* EntryAt(HWND list, int index);
void DeleteEntry(ULONG_PTR itemData);
// The height of an entry, and its picture on the screen. `folder` is where its file lies.
int EntryHeight(const CBrowseEntry& entry);
void DrawEntry(const DRAWITEMSTRUCT& item, const std::string& folder);

}  // namespace qx::win32
