#include "win32/controls/LastHandler.h"

#include <exception>
#include <string>

#include "toolkit/Basics.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

namespace {

std::string Describe() {
    try {
        throw;
    } catch (const std::exception& error) {
        return error.what();
    } catch (...) {
        return "Unknown error";
    }
}

}  // namespace

void LastHandler::Report() noexcept {
    if (reporting_)
        return;
    const toolkit::ScopedFlag reporting(reporting_);
    ReleaseCapture();
    constexpr UINT kLook = MB_OK | MB_ICONERROR | MB_TASKMODAL;
    try {
        MessageBoxW(GetActiveWindow(), WideForDisplay(Describe()).c_str(), L"Ordalyn", kLook);
    } catch (...) {
        // There is no memory for the error's own words.
        MessageBoxW(nullptr, L"Out of memory", L"Ordalyn", kLook);
    }
}

}  // namespace ordalyn::win32
