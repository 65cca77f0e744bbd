// List boxes and combo boxes filled from a list of a table.
#include "config/list_items.h"
#include "config/process.h"

#include <qxutility/config/table_reader.h>

#include <windows.h>

namespace {

// The same operation has another number in either kind of box.
struct Messages {
    UINT initStorage, insertString, addString;
};
constexpr Messages kComboBox = {CB_INITSTORAGE, CB_INSERTSTRING, CB_ADDSTRING};
constexpr Messages kListBox = {LB_INITSTORAGE, LB_INSERTSTRING, LB_ADDSTRING};
constexpr WPARAM kAtTheEnd = static_cast<WPARAM>(-1);

}  // namespace

void CTableReader::Fill(bool comboBox, HWND control, const char* list, char delimiter,
                        bool addLastSorted)
{
    if (!list)
        return;
    const Messages& messages = comboBox ? kComboBox : kListBox;
    const qx::ListStorage storage = qx::StorageFor(list, delimiter);
    ::SendMessageA(control, messages.initStorage, static_cast<WPARAM>(storage.items),
                   static_cast<LPARAM>(storage.bytes));
    std::vector<std::string> items = qx::ListItems(list, delimiter);
    for (std::string& item : items) {
        const char* text = qx::Process().language.Number(item.data());
        const bool sorted = addLastSorted && &item == &items.back();
        ::SendMessageA(control, sorted ? messages.addString : messages.insertString,
                       sorted ? 0 : kAtTheEnd, reinterpret_cast<LPARAM>(text));
    }
}
