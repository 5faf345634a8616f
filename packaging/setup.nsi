; The setup program. build.sh release compiles it in a folder that has the files to install:
; x64\Ordalyn.exe, x86\Ordalyn.exe, and in both\ what does not differ.
;
;   ordalyn-VERSION-setup.exe [/S] [/CURRENTUSER | /ALLUSERS | /PORTABLE] [/D=FOLDER]
;   uninstall.exe [/S] [/REMOVESETTINGS]
;
; /S asks nothing and shows nothing; /D= comes last and without quotation marks. Without a switch it is
; for the current user. Ends with 0 when all is done, 1 when the user cancels, 2 when it cannot be done.
Unicode true
ManifestDPIAware true
ManifestSupportedOS all
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Ordalyn"
OutFile "${OUT_FILE}"
BrandingText "Ordalyn ${VERSION}"
VIProductVersion "${VERSION}.0"

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include x64.nsh
!insertmacro GetParameters
!insertmacro GetOptions

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ordalyn"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING
!define MUI_LANGDLL_ALLLANGUAGES

; user, all or portable
Var Mode
; The folder that was asked for on the command line.
Var Folder
Var ForUser
Var ForAll
Var AsPortable
Var RemoveSettings
Var RemoveBox

Page custom ModePage ModePageLeft
!define MUI_PAGE_CUSTOMFUNCTION_PRE DirectoryPage
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TEXT "$(ButtonBar)"
!define MUI_FINISHPAGE_TEXT_LARGE
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.SettingsPage un.SettingsPageLeft
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "Czech"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Greek"
!insertmacro MUI_LANGUAGE "Hebrew"
!insertmacro MUI_LANGUAGE "Hungarian"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "Polish"
!insertmacro MUI_LANGUAGE "PortugueseBR"
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Turkish"
!insertmacro MUI_LANGUAGE "Ukrainian"
!include "${TEXTS}"

VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Ordalyn"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Ordalyn setup"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" ""

; Files, menus and registry keys are the user's own or everybody's, and those of the system's kind.
!macro UseContext
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ${If} $Mode == "all"
        SetShellVarContext all
    ${Else}
        SetShellVarContext current
    ${EndIf}
!macroend

; Where an earlier version is, if there is one; else where programs of this kind belong.
Function ChooseFolder
    !insertmacro UseContext
    ${If} $Folder != ""
        StrCpy $INSTDIR $Folder
        Return
    ${EndIf}
    ${If} $Mode == "portable"
        StrCpy $INSTDIR "$EXEDIR\Ordalyn"
        Return
    ${EndIf}
    ReadRegStr $INSTDIR SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $INSTDIR != ""
        Return
    ${EndIf}
    ${If} $Mode == "user"
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Ordalyn"
    ${ElseIf} ${RunningX64}
        StrCpy $INSTDIR "$PROGRAMFILES64\Ordalyn"
    ${Else}
        StrCpy $INSTDIR "$PROGRAMFILES\Ordalyn"
    ${EndIf}
FunctionEnd

; The answer is on the stack: 1 or 0.
Function IsAdministrator
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 == "Admin"
        Push 1
    ${Else}
        Push 0
    ${EndIf}
FunctionEnd

Function .onInit
    StrCpy $Folder $INSTDIR
    StrCpy $Mode "user"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/ALLUSERS" $1
    ${IfNot} ${Errors}
        StrCpy $Mode "all"
    ${EndIf}
    ClearErrors
    ${GetOptions} $0 "/PORTABLE" $1
    ${IfNot} ${Errors}
        StrCpy $Mode "portable"
    ${EndIf}
    ${If} ${Silent}
    ${AndIf} $Mode == "all"
        Call IsAdministrator
        Pop $1
        ${If} $1 == 0
            SetErrorLevel 2
            Abort
        ${EndIf}
    ${EndIf}
    Call ChooseFolder
FunctionEnd

; A page of our own, from the right where the language is written so.
!macro CreatePage
    nsDialogs::Create 1018
    Pop $0
    nsDialogs::SetRTL $(^RTL)
!macroend

Function ModePage
    !insertmacro MUI_HEADER_TEXT "$(ModeTitle)" "$(ModeSubtitle)"
    !insertmacro CreatePage
    ; Room for two lines each, which some languages need.
    ${NSD_CreateRadioButton} 0 4u 100% 20u "$(ModeUser)"
    Pop $ForUser
    ${NSD_CreateRadioButton} 0 28u 100% 20u "$(ModeAll)"
    Pop $ForAll
    ${NSD_CreateRadioButton} 0 52u 100% 20u "$(ModePortable)"
    Pop $AsPortable
    ${If} $Mode == "all"
        ${NSD_Check} $ForAll
        ${NSD_SetFocus} $ForAll
    ${ElseIf} $Mode == "portable"
        ${NSD_Check} $AsPortable
        ${NSD_SetFocus} $AsPortable
    ${Else}
        ${NSD_Check} $ForUser
        ${NSD_SetFocus} $ForUser
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function ModePageLeft
    StrCpy $Mode "user"
    ${NSD_GetState} $ForAll $0
    ${If} $0 == ${BST_CHECKED}
        StrCpy $Mode "all"
        Call IsAdministrator
        Pop $0
        ${If} $0 == 0
            ; The system asks for consent. This program goes on there.
            StrCpy $0 "/ALLUSERS"
            ${If} $Folder != ""
                StrCpy $0 "/ALLUSERS /D=$Folder"
            ${EndIf}
            ClearErrors
            ExecShell "runas" "$EXEPATH" $0
            ${If} ${Errors}
                MessageBox MB_OK|MB_ICONEXCLAMATION "$(NeedsAdministrator)"
                Abort
            ${EndIf}
            Quit
        ${EndIf}
    ${EndIf}
    ${NSD_GetState} $AsPortable $0
    ${If} $0 == ${BST_CHECKED}
        StrCpy $Mode "portable"
    ${EndIf}
FunctionEnd

; With the rights of the person at the desktop, not with those that installing for everybody needs: what
; an administrator's program creates, settings say, is not theirs.
Function StartProgram
    ${If} $Mode == "all"
        Exec '"$WINDIR\explorer.exe" "$INSTDIR\Ordalyn.exe"'
    ${Else}
        Exec '"$INSTDIR\Ordalyn.exe"'
    ${EndIf}
FunctionEnd

Function DirectoryPage
    Call ChooseFolder
FunctionEnd

; A program that runs cannot be replaced.
!macro WaitForProgram
    !define RETRY ${__COUNTER__}
    retry_${RETRY}:
    ${If} ${FileExists} "$INSTDIR\Ordalyn.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\Ordalyn.exe" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUse)" /SD IDCANCEL IDRETRY retry_${RETRY}
            SetErrorLevel 2
            Abort "$(InUse)"
        ${EndIf}
        FileClose $0
    ${EndIf}
    !undef RETRY
!macroend

Section
    !insertmacro UseContext
    !insertmacro WaitForProgram
    SetOutPath "$INSTDIR"
    ClearErrors
    ${If} ${RunningX64}
        File "x64\Ordalyn.exe"
    ${Else}
        File "x86\Ordalyn.exe"
    ${EndIf}
    File /r "both\*.*"
    ${If} ${Errors}
        SetErrorLevel 2
        Abort
    ${EndIf}
    ${If} $Mode != "portable"
        WriteUninstaller "$INSTDIR\uninstall.exe"
        CreateShortcut "$SMPROGRAMS\Ordalyn.lnk" "$INSTDIR\Ordalyn.exe"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Ordalyn"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Ordalyn.exe"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "Mode" "$Mode"
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
        WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
        WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
        WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
        WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
    ${EndIf}
SectionEnd

; The uninstaller is everybody's when it is everybody's key that names its folder.
Function un.onInit
    StrCpy $RemoveSettings 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/REMOVESETTINGS" $1
    ${IfNot} ${Errors}
        StrCpy $RemoveSettings 1
    ${EndIf}
    StrCpy $Mode "all"
    !insertmacro UseContext
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != $INSTDIR
        StrCpy $Mode "user"
        Return
    ${EndIf}
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
        ${If} ${Silent}
            SetErrorLevel 2
            Abort
        ${EndIf}
        ClearErrors
        ExecShell "runas" "$INSTDIR\uninstall.exe"
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "$(NeedsAdministrator)"
        ${EndIf}
        Quit
    ${EndIf}
FunctionEnd

Function un.SettingsPage
    !insertmacro MUI_HEADER_TEXT "$(RemoveTitle)" "$INSTDIR"
    !insertmacro CreatePage
    ${NSD_CreateCheckBox} 0 4u 100% 20u "$(RemoveSettingsToo)"
    Pop $RemoveBox
    ${NSD_SetFocus} $RemoveBox
    nsDialogs::Show
FunctionEnd

Function un.SettingsPageLeft
    ${NSD_GetState} $RemoveBox $RemoveSettings
FunctionEnd

Section Uninstall
    !insertmacro UseContext
    !insertmacro WaitForProgram
    ; Only what has been installed: somebody may keep a language of their own there.
    !include "${REMOVE_FILES}"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\Ordalyn.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    ${If} $RemoveSettings == 1
        Delete "$INSTDIR\Ordalyn.ini"
        SetShellVarContext current
        Delete "$APPDATA\Ordalyn\Ordalyn.ini"
        RMDir "$APPDATA\Ordalyn"
    ${EndIf}
    RMDir "$INSTDIR\Languages"
    RMDir "$INSTDIR"
SectionEnd
