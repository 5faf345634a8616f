#include "win32/common/Resolution.h"

#include "win32/common/SystemLibraries.h"

namespace ordalyn::win32 {

namespace {

// All of these are newer than the oldest Windows that the program runs on.
struct Resolutions {
    using DpiForMonitor = HRESULT WINAPI(HMONITOR, int, UINT*, UINT*);
    using MetricsForDpi = int WINAPI(int, UINT);
    using ScaleFrame = BOOL WINAPI(HWND);
    const Library monitors = LoadSystemLibrary(L"shcore.dll");
    const Library windows = LoadSystemLibrary(L"user32.dll");
    DpiForMonitor* const dpiForMonitor = FunctionOf<DpiForMonitor>(monitors, "GetDpiForMonitor");
    MetricsForDpi* const metricsForDpi =
        FunctionOf<MetricsForDpi>(windows, "GetSystemMetricsForDpi");
    ScaleFrame* const scaleFrame = FunctionOf<ScaleFrame>(windows, "EnableNonClientDpiScaling");
};

const Resolutions& TheSystem() {
    static const Resolutions functions;
    return functions;
}

}  // namespace

Scale ScaleOfScreen(const RECT& place) {
    constexpr int kEffective = 0;
    const HMONITOR screen = MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST);
    UINT x = 0;
    UINT y = 0;
    if (TheSystem().dpiForMonitor == nullptr ||
        FAILED(TheSystem().dpiForMonitor(screen, kEffective, &x, &y)) || x == 0 || y == 0)
        return {};
    return {static_cast<int>(x), static_cast<int>(y)};
}

int MetricAt(int metric, int dpi) {
    return TheSystem().metricsForDpi == nullptr
               ? GetSystemMetrics(metric)
               : TheSystem().metricsForDpi(metric, static_cast<UINT>(dpi));
}

void ScaleFrameOf(HWND window) {
    if (TheSystem().scaleFrame != nullptr)
        TheSystem().scaleFrame(window);
}

}  // namespace ordalyn::win32
