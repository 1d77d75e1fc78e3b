; SPDX-License-Identifier: GPL-3.0-or-later
; The installer of the Windows program. It installs for the current user, without administrator rights.
; packaging/windows/build defines VERSION and ROOT, the project's folder.

Unicode true
Target amd64-unicode
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true

!include MUI2.nsh
!include LogicLib.nsh

!define NAME "Parlexo Client"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME} ${VERSION}"
OutFile "${ROOT}/dist/parlexo-client-${VERSION}-setup.exe"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${NAME}"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "LegalCopyright" "Copyright (C) 2026 the Parlexo developers. GPL-3.0-or-later."

!define MUI_ICON "${ROOT}/build/windows/parlexo-client.ico"
!define MUI_UNICON "${ROOT}/build/windows/parlexo-client.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ROOT}/build/windows/installer.bmp"
!define MUI_LICENSEPAGE_BUTTON "&Next >"
!define MUI_LICENSEPAGE_TEXT_TOP "${NAME} is free software."
!define MUI_LICENSEPAGE_TEXT_BOTTOM "You do not need to accept this licence to use the program. \
It governs copying and changing it."
!define MUI_FINISHPAGE_RUN "$INSTDIR\${NAME}.exe"
!insertmacro MUI_PAGE_LICENSE "${ROOT}/LICENSE"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_UNCONFIRMPAGE_TEXT_TOP "${NAME} will be removed. Your settings, and contacts, templates and \
Status.xml in its folder, are kept."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running program cannot be replaced or removed: ask the user to close it before anything is changed.
!macro closeFirst FILE
  ${DoWhile} ${FileExists} "$INSTDIR\${FILE}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${FILE}" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION '"${FILE}" is running. Please close it first.' /SD IDCANCEL IDCANCEL`
      Abort
    ${EndIf}
  ${Loop}
!macroend

Section
  !insertmacro closeFirst "${NAME}.exe"
  !insertmacro closeFirst "parlexo-simulator.exe"
  !insertmacro closeFirst "parlexo-page-counter.exe"
  SetOutPath "$INSTDIR"
  File "${ROOT}/dist/Parlexo Client.exe"
  File "${ROOT}/dist/parlexo-simulator.exe"
  File "${ROOT}/dist/parlexo-page-counter.exe"
  File "${ROOT}/dist/Libraries.txt"
  File /oname=LICENSE.txt "${ROOT}/LICENSE"
  CreateDirectory "$SMPROGRAMS\${NAME}"
  CreateShortcut "$SMPROGRAMS\${NAME}\${NAME}.lnk" "$INSTDIR\${NAME}.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}\${NAME} (demo).lnk" "$INSTDIR\${NAME}.exe" "--demo"
  CreateShortcut "$SMPROGRAMS\${NAME}\Uninstall.lnk" "$INSTDIR\uninstall.exe"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${NAME}.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Parlexo developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  SectionGetSize 0 $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Contacts, templates, Status.xml and the settings belong to the user and are kept.
Section "Uninstall"
  !insertmacro closeFirst "${NAME}.exe"
  !insertmacro closeFirst "parlexo-simulator.exe"
  !insertmacro closeFirst "parlexo-page-counter.exe"
  Delete "$INSTDIR\${NAME}.exe"
  Delete "$INSTDIR\parlexo-simulator.exe"
  Delete "$INSTDIR\parlexo-page-counter.exe"
  Delete "$INSTDIR\Libraries.txt"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}\${NAME}.lnk"
  Delete "$SMPROGRAMS\${NAME}\${NAME} (demo).lnk"
  Delete "$SMPROGRAMS\${NAME}\Uninstall.lnk"
  RMDir "$SMPROGRAMS\${NAME}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
