; SPDX-License-Identifier: MIT
; The installer of the module and the program, made by packaging/pack-windows, which defines VERSION, FOLDER (what is
; installed), LISTS (its files, one command each), SIZE (kilobytes) and OUTPUT.
;
;   setup.exe [/S] [/HOST=FOLDER] [/D=FOLDER]   /S asks nothing; /HOST: the folder of Tarnsway.exe, empty for no module
;
; Exit status 0: done; 2: refused, and nothing was changed.
Unicode true
SetCompressor /SOLID zlib
RequestExecutionLevel admin
ManifestSupportedOS all
ManifestDPIAware true
CRCCheck force
Name "Lumerin ${VERSION}"
BrandingText "Lumerin ${VERSION}"
OutFile "${OUTPUT}"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lumerin"
InstallDir "$PROGRAMFILES\Lumerin"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
ShowInstDetails show
ShowUninstDetails show


VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "FileDescription" "Lumerin ${VERSION} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductName" "Lumerin"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "The Lumerin developers"
VIAddVersionKey "LegalCopyright" "MIT License"

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include x64.nsh
!include "path.nsh"

Var Host      ; the folder of Tarnsway.exe, without a last backslash
Var Earlier   ; the folder of an earlier version, or nothing
Var PathText  ; what was added to the variable Path

!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_PAGE_HEADER_TEXT "Folder of Tarnsway"
!define MUI_PAGE_HEADER_SUBTEXT "Where the module is installed"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Choose the folder that has Tarnsway.exe. The module Lumerin.dll is copied there. A Lumerin.dll that is there already is kept as Lumerin.dll.kept and comes back when Lumerin is uninstalled."
!define MUI_DIRECTORYPAGE_VARIABLE $Host
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipHostPage
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveHostPage
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Ends the run with exit status 2 before anything is changed.
!macro Refuse text
    DetailPrint "${text}"
    MessageBox MB_OK|MB_ICONSTOP "${text}" /SD IDOK
    SetErrorLevel 2
    Quit
!macroend

; Refuses where the file is there and cannot be written, as while its program runs.
!macro RefuseInUse file
    ${If} ${FileExists} "${file}"
        ClearErrors
        FileOpen $0 "${file}" a
        ${If} ${Errors}
            !insertmacro Refuse "${file} cannot be written. Close Tarnsway and all windows of lumerin, then try again."
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

; $0 = "same" where both files have the same bytes.
!macro CompareFiles one another
    StrCpy $0 ""
    ClearErrors
    FileOpen $1 "${one}" r
    FileOpen $2 "${another}" r
    ${IfNot} ${Errors}
        FileSeek $1 0 END $3
        FileSeek $2 0 END $4
        ${If} $3 == $4
            FileSeek $1 0
            FileSeek $2 0
            System::Alloc $3
            Pop $5
            System::Alloc $3
            Pop $6
            System::Call "kernel32::ReadFile(p r1, p r5, i r3, *i .r7, p 0)"
            System::Call "kernel32::ReadFile(p r2, p r6, i r3, *i .r8, p 0)"
            System::Call "ntdll::RtlCompareMemory(p r5, p r6, p r3) p .r9"
            ${If} $7 == $3
            ${AndIf} $8 == $3
            ${AndIf} $9 == $3
                StrCpy $0 "same"
            ${EndIf}
            System::Free $5
            System::Free $6
        ${EndIf}
    ${EndIf}
    FileClose $1
    FileClose $2
!macroend

Section "Program lumerin, guide and samples" SectionProgram
    SectionIn RO
    Call Prepare
    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "$SMPROGRAMS\Lumerin guide.lnk" "$INSTDIR\guide\index.html"
    WriteRegStr HKLM "${ENTRY}" "DisplayName" "Lumerin"
    WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${ENTRY}" "Publisher" "The Lumerin developers"
    WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${ENTRY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
    !insertmacro AddToPath "$INSTDIR\bin" $PathText
    WriteRegStr HKLM "${ENTRY}" "PathText" "$PathText"
SectionEnd

Section "Module Lumerin.dll for Tarnsway" SectionModule
    ${If} ${FileExists} "$Host\Lumerin.dll"
        DetailPrint "Keep the module that is there as Lumerin.dll.kept"
        Rename "$Host\Lumerin.dll" "$Host\Lumerin.dll.kept"
    ${EndIf}
    WriteRegStr HKLM "${ENTRY}" "HostFolder" "$Host"
    File "/oname=$Host\Lumerin.dll" "${FOLDER}/module/Lumerin.dll"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionProgram} "The program for the command prompt, on the Path; the guide; six sample projects."
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionModule} "The dialog that Tarnsway opens."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
    SetShellVarContext all
    ReadRegStr $Earlier HKLM "${ENTRY}" "InstallLocation"
    ReadRegStr $Host HKLM "${ENTRY}" "HostFolder"
    Call ReadHost
    Call TrimHost
    ${If} ${Silent}
    ${AndIf} $Host == ""
        !insertmacro UnselectSection ${SectionModule}
    ${EndIf}
FunctionEnd

; The folder of "/HOST=FOLDER", where that is given: a folder with blanks as /HOST="FOLDER" or "/HOST=FOLDER".
Function ReadHost
    ${GetParameters} $0
    StrCpy $1 0
    ${Do}
        StrCpy $2 $0 6 $1
        ${If} $2 == ""
            Return
        ${EndIf}
        ${If} $2 == "/HOST="
            ${Break}
        ${EndIf}
        IntOp $1 $1 + 1
    ${Loop}
    StrCpy $3 " "
    ${If} $1 > 0
        IntOp $2 $1 - 1
        StrCpy $2 $0 1 $2
        ${If} $2 == '"'
            StrCpy $3 '"'
        ${EndIf}
    ${EndIf}
    IntOp $1 $1 + 6
    StrCpy $2 $0 1 $1
    ${If} $2 == '"'
        StrCpy $3 '"'
        IntOp $1 $1 + 1
    ${EndIf}
    StrCpy $Host ""
    ${Do}
        StrCpy $2 $0 1 $1
        ${If} $2 == ""
        ${OrIf} $2 == $3
            Return
        ${EndIf}
        StrCpy $Host "$Host$2"
        IntOp $1 $1 + 1
    ${Loop}
FunctionEnd

Function TrimHost
    ${Do}
        StrCpy $0 $Host 1 -1
        ${If} $0 != "\"
            ${Break}
        ${EndIf}
        StrCpy $Host $Host -1
    ${Loop}
FunctionEnd

Function SkipHostPage
    ${IfNot} ${SectionIsSelected} ${SectionModule}
        Abort
    ${EndIf}
FunctionEnd

Function LeaveHostPage
    Call TrimHost
    ${IfNot} ${FileExists} "$Host\*.*"
        MessageBox MB_OK|MB_ICONSTOP "There is no folder $Host."
        Abort
    ${EndIf}
    ${IfNot} ${FileExists} "$Host\Tarnsway.exe"
        MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "$Host has no Tarnsway.exe, and the module works with nothing else. Is it the folder all the same?" IDYES +2
        Abort
    ${EndIf}
FunctionEnd

; Refuses what cannot be done, and removes an earlier version. Nobody can be asked in a silent run, so that there the folder
; must be right.
Function Prepare
    ${If} ${SectionIsSelected} ${SectionModule}
        ${If} ${Silent}
        ${AndIfNot} ${FileExists} "$Host\Tarnsway.exe"
            !insertmacro Refuse "$Host has no Tarnsway.exe."
        ${EndIf}
        !insertmacro RefuseInUse "$Host\Lumerin.dll"
    ${EndIf}
    ${If} ${SectionIsSelected} ${SectionModule}
    ${AndIf} ${FileExists} "$Host\Lumerin.dll"
    ${AndIf} ${FileExists} "$Host\Lumerin.dll.kept"
        ; As an earlier version leaves them, which restores the kept one now.
        !insertmacro CompareFiles "$Host\Lumerin.dll" "$Earlier\module\Lumerin.dll"
        ${If} $0 != "same"
            !insertmacro Refuse "$Host has both Lumerin.dll and Lumerin.dll.kept. Move one of them away, then try again."
        ${EndIf}
    ${EndIf}
    Call RemoveEarlier
FunctionEnd

; An upgrade removes the version that is there first, so that nothing of it remains.
Function RemoveEarlier
    ${If} $Earlier == ""
    ${OrIfNot} ${FileExists} "$Earlier\uninstall.exe"
        Return
    ${EndIf}
    DetailPrint "Remove the earlier version"
    ExecWait '"$Earlier\uninstall.exe" /S _?=$Earlier' $0
    ${If} $0 != 0
        !insertmacro Refuse "The earlier version in $Earlier could not be removed. Close Tarnsway and all windows of lumerin, then try again."
    ${EndIf}
    Delete "$Earlier\uninstall.exe"
    RMDir "$Earlier"
FunctionEnd

Function un.onInit
    SetShellVarContext all
    ReadRegStr $Host HKLM "${ENTRY}" "HostFolder"
    ReadRegStr $PathText HKLM "${ENTRY}" "PathText"
FunctionEnd

Section "Uninstall"
    !insertmacro RefuseInUse "$INSTDIR\bin\lumerin.exe"
    ${If} $Host != ""
        !insertmacro CompareFiles "$Host\Lumerin.dll" "$INSTDIR\module\Lumerin.dll"
        ${If} $0 == "same"
            !insertmacro RefuseInUse "$Host\Lumerin.dll"
            Delete "$Host\Lumerin.dll"
        ${ElseIf} ${FileExists} "$Host\Lumerin.dll"
            DetailPrint "$Host\Lumerin.dll is not the one of this version and remains"
        ${EndIf}
        ${IfNot} ${FileExists} "$Host\Lumerin.dll"
        ${AndIf} ${FileExists} "$Host\Lumerin.dll.kept"
            Rename "$Host\Lumerin.dll.kept" "$Host\Lumerin.dll"
        ${EndIf}
    ${EndIf}
    ${If} $PathText != ""
        !insertmacro RemoveFromPath "$PathText"
    ${EndIf}
    !include "${LISTS}/remove.nsh"
    Delete "$SMPROGRAMS\Lumerin guide.lnk"
    DeleteRegKey HKLM "${ENTRY}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
SectionEnd
