// Where libraries are taken from, with one in place that must not be.
#include "win32/common/SystemLibraries.h"

#include <gtest/gtest.h>

#include <string>

namespace ordalyn::test {
namespace {

using win32::FunctionOf;
using win32::Library;
using win32::LoadSystemLibrary;

constexpr const wchar_t* kPlanted = L"planted.dll";

std::wstring PathOf(HMODULE library) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(library, path, MAX_PATH);
    return path;
}

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.rfind(L'\\'));
}

std::wstring SystemFolder() {
    wchar_t folder[MAX_PATH] = {};
    GetSystemDirectoryW(folder, MAX_PATH);
    return folder;
}

bool CanBeLoaded(const std::wstring& library) {
    return static_cast<bool>(Library(LoadLibraryW(library.c_str())));
}

TEST(SystemLibraries, OneOfTheSystemComesFromItsFolder) {
    const Library library = LoadSystemLibrary(L"uxtheme.dll");
    ASSERT_TRUE(library);
    EXPECT_EQ(_wcsicmp(FolderOf(PathOf(library.Get())).c_str(), SystemFolder().c_str()), 0);
}

TEST(SystemLibraries, OneBesideTheProgramIsNone) {
    ASSERT_TRUE(CanBeLoaded(FolderOf(PathOf(nullptr)) + L"\\" + kPlanted));
    EXPECT_FALSE(LoadSystemLibrary(kPlanted));
}

TEST(SystemLibraries, WhatALibraryDoesNotHaveIsNull) {
    using Function = BOOL WINAPI();
    const Library library = LoadSystemLibrary(L"uxtheme.dll");
    EXPECT_NE(FunctionOf<Function>(library, "IsAppThemed"), nullptr);
    EXPECT_EQ(FunctionOf<Function>(library, "IsNoSuchFunction"), nullptr);
    EXPECT_EQ(FunctionOf<Function>(Library(), "IsAppThemed"), nullptr);
}

// The last test: a process cannot take it back.
TEST(SystemLibrariesOnly, ANameAloneIsLookedForInTheSystemsFolder) {
    const std::wstring beside = FolderOf(PathOf(nullptr)) + L"\\" + kPlanted;
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    wchar_t temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    const std::wstring inFolder = std::wstring(temporary) + L"planted-too.dll";
    ASSERT_TRUE(CopyFileW(beside.c_str(), inFolder.c_str(), FALSE));
    SetCurrentDirectoryW(temporary);
    ASSERT_TRUE(CanBeLoaded(kPlanted));
    ASSERT_TRUE(CanBeLoaded(L"planted-too.dll"));

    win32::FindLibrariesInSystemFolderOnly();
    EXPECT_FALSE(CanBeLoaded(kPlanted));
    EXPECT_FALSE(CanBeLoaded(L"planted-too.dll"));
    EXPECT_TRUE(CanBeLoaded(beside));
    EXPECT_TRUE(CanBeLoaded(L"winmm.dll"));

    SetCurrentDirectoryW(before);
    DeleteFileW(inFolder.c_str());
}

}  // namespace
}  // namespace ordalyn::test
