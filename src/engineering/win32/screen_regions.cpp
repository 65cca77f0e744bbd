#include "win32/handle.h"

#include <qxutility/engineering/geometry.h>

#include <cstddef>
#include <vector>

double GetRegionArea(HRGN region)
{
    const DWORD size = ::GetRegionData(region, 0, nullptr);
    if (size < sizeof(RGNDATAHEADER))
        return 0;
    std::vector<std::max_align_t> storage(size / sizeof(std::max_align_t) + 1);
    auto* const data = reinterpret_cast<RGNDATA*>(storage.data());
    if (::GetRegionData(region, size, data) == 0)
        return 0;
    return GetRegionArea(reinterpret_cast<const RECT*>(data->Buffer), data->rdh.nCount);
}

bool PtOnScreen(int x, int y)
{
    const qx::win32::RegionHandle region(::CreateRectRgn(0, 0, 0, 0));
    ::GetWindowRgn(::GetDesktopWindow(), region.get());
    return ::PtInRegion(region.get(), x, y) != 0;
}
