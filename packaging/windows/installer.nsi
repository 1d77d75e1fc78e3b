; The installer of the Windows program: into the user's own folder, so that no administrator is needed.
; Called by packaging/windows/build with VERSION and ROOT (the project's folder).

Unicode true
Target amd64-unicode
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true

!define NAME "Parlexo Client"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME} ${VERSION}"
OutFile "${ROOT}/dist/parlexo-client-${VERSION}-setup.exe"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
Icon "${ROOT}/build/windows/parlexo-client.ico"
UninstallIcon "${ROOT}/build/windows/parlexo-client.ico"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "LegalCopyright" "Copyright (C) 2026 the Parlexo developers. GPL-3.0-or-later."

LicenseData "${ROOT}/LICENSE"
Page license
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; A program that runs can't be replaced; say so instead of leaving half of it.
!macro closeFirst SECTION
  again_${SECTION}:
  ClearErrors
  IfFileExists "$INSTDIR\${NAME}.exe" 0 closed_${SECTION}
  FileOpen $0 "$INSTDIR\${NAME}.exe" a
  IfErrors 0 release_${SECTION}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} is running. Please close it first." IDRETRY again_${SECTION}
  Abort
  release_${SECTION}:
  FileClose $0
  closed_${SECTION}:
!macroend

Section
  !insertmacro closeFirst install
  SetOutPath "$INSTDIR"
  File "${ROOT}/dist/Parlexo Client.exe"
  File "${ROOT}/dist/parlexo-gateway.exe"
  File "${ROOT}/dist/parlexo-page-counter.exe"
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
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Contacts, templates, Status.xml and the settings are the user's and stay.
Section "Uninstall"
  !insertmacro closeFirst uninstall
  Delete "$INSTDIR\${NAME}.exe"
  Delete "$INSTDIR\parlexo-gateway.exe"
  Delete "$INSTDIR\parlexo-page-counter.exe"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}\${NAME}.lnk"
  Delete "$SMPROGRAMS\${NAME}\${NAME} (demo).lnk"
  Delete "$SMPROGRAMS\${NAME}\Uninstall.lnk"
  RMDir "$SMPROGRAMS\${NAME}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
