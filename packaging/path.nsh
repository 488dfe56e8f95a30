; SPDX-License-Identifier: MIT
; Changes of the machine's variable Path. Strings of an installer end at 1,024 characters, and a Path that went through one
; would be cut there; so its value stays in memory of the system (GlobalAlloc) at its full length.
!define PATH_KEY "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"
; Programs of older Windows see nothing of a longer Path.
!define PATH_LIMIT 2047

; Opens the variables: $1 the key, $2 the type of Path, $4 the address of its value with room for the text and a zero,
; $5 its characters. $0 = 0 where all went well; otherwise nothing is open.
!macro OpenPath text
    StrLen $6 "${text}"
    StrCpy $2 2  ; REG_EXPAND_SZ, where there is no Path yet
    StrCpy $4 0
    System::Call "advapi32::RegOpenKeyExW(p 0x80000002, w '${PATH_KEY}', i 0, i 3, *p .r1) i .r0"
    ${If} $0 = 0
        StrCpy $3 0
        System::Call "advapi32::RegQueryValueExW(p r1, w 'Path', p 0, *i .r2, p 0, *i r3r3) i .r0"
        ${If} $0 = 2  ; there is none
            StrCpy $0 0
            StrCpy $2 2
            StrCpy $3 0
        ${ElseIf} $2 <> 1
        ${AndIf} $2 <> 2
            StrCpy $0 1
        ${EndIf}
        ${If} $0 = 0
            IntOp $6 $6 * 2
            IntOp $6 $6 + $3
            IntOp $6 $6 + 8
            System::Call "kernel32::GlobalAlloc(i 0x40, p r6) p .r4"
            ${If} $4 = 0
                StrCpy $0 1
            ${ElseIf} $3 > 0
                System::Call "advapi32::RegQueryValueExW(p r1, w 'Path', p 0, p 0, p r4, *i r3r3) i .r0"
            ${EndIf}
        ${EndIf}
        ${If} $0 = 0
            System::Call "kernel32::lstrlenW(p r4) i .r5"
        ${Else}
            !insertmacro ClosePath
        ${EndIf}
    ${EndIf}
!macroend

!macro ClosePath
    System::Call "kernel32::GlobalFree(p r4)"
    System::Call "advapi32::RegCloseKey(p r1)"
!macroend

; Writes the value back, in its type. $0 = 0 where it is written. Programs that run are notified.
!macro WritePath
    System::Call "kernel32::lstrlenW(p r4) i .r5"
    IntOp $6 $5 + 1
    IntOp $6 $6 * 2
    System::Call "advapi32::RegSetValueExW(p r1, w 'Path', i 0, i r2, p r4, i r6) i .r0"
    SendMessage ${HWND_BROADCAST} ${WM_WININICHANGE} 0 "STR:Environment" /TIMEOUT=3000
!macroend

; $7 = the address of the folder as a whole element of the value, or 0; $8 its characters.
!macro FindInPath folder
    StrLen $8 "${folder}"
    StrCpy $7 $4
    ${Do}
        System::Call "shlwapi::StrStrIW(p r7, w '${folder}') p .r7"
        ${If} $7 = 0
            ${Break}
        ${EndIf}
        StrCpy $0 ${PATH_SEPARATOR}
        ${If} $7 <> $4
            IntOp $9 $7 - 2
            System::Call "*$9(&i2 .r0)"
        ${EndIf}
        IntOp $9 $8 * 2
        IntOp $9 $7 + $9
        System::Call "*$9(&i2 .r9)"
        ${If} $0 = ${PATH_SEPARATOR}
            ${If} $9 = ${PATH_SEPARATOR}
            ${OrIf} $9 = 0
                ${Break}
            ${EndIf}
        ${EndIf}
        IntOp $7 $7 + 2
    ${Loop}
!macroend
!define PATH_SEPARATOR 59

; Adds the folder to the end of Path, unless it is there. `added` gets what was added, or nothing.
!macro AddToPath folder added
    StrCpy ${added} ""
    !insertmacro OpenPath ";${folder}"
    ${If} $0 = 0
        !insertmacro FindInPath "${folder}"
        ${If} $7 = 0
            StrCpy $R0 "${folder}"
            ${If} $5 > 0
                IntOp $9 $5 - 1
                IntOp $9 $9 * 2
                IntOp $9 $4 + $9
                System::Call "*$9(&i2 .r0)"
                ${If} $0 <> ${PATH_SEPARATOR}
                    StrCpy $R0 ";${folder}"
                ${EndIf}
            ${EndIf}
            StrLen $9 $R0
            IntOp $9 $9 + $5
            ${If} $9 > ${PATH_LIMIT}
                DetailPrint "The variable Path is left as it is: it would be longer than ${PATH_LIMIT} characters"
                MessageBox MB_OK|MB_ICONINFORMATION "The variable Path would be longer than ${PATH_LIMIT} characters, so it is left as it is. Start the program as ${folder}\lumerin.exe." /SD IDOK
            ${Else}
                System::Call "kernel32::lstrcatW(p r4, w R0)"
                !insertmacro WritePath
                ${If} $0 = 0
                    StrCpy ${added} $R0
                ${EndIf}
            ${EndIf}
        ${EndIf}
        !insertmacro ClosePath
    ${EndIf}
!macroend

; Removes what AddToPath added, wherever it is now.
!macro RemoveFromPath added
    StrCpy $R1 "${added}" 1
    StrCpy $R0 "${added}"
    ${If} $R1 == ";"
        StrCpy $R0 "${added}" "" 1
    ${EndIf}
    !insertmacro OpenPath ""
    ${If} $0 = 0
        !insertmacro FindInPath "$R0"
        ${If} $7 <> 0
            ; From $7 to $9: with the separator that came with it, or the one after it at the beginning.
            IntOp $9 $8 * 2
            IntOp $9 $7 + $9
            ${If} $R1 == ";"
            ${AndIf} $7 <> $4
                IntOp $7 $7 - 2
            ${Else}
                System::Call "*$9(&i2 .r0)"
                ${If} $0 = ${PATH_SEPARATOR}
                    IntOp $9 $9 + 2
                ${EndIf}
            ${EndIf}
            System::Call "kernel32::lstrlenW(p r9) i .r6"
            IntOp $6 $6 + 1
            IntOp $6 $6 * 2
            System::Call "ntdll::RtlMoveMemory(p r7, p r9, p r6)"
            !insertmacro WritePath
        ${EndIf}
        !insertmacro ClosePath
    ${EndIf}
!macroend
