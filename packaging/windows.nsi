; The installer for Windows: for one user, without an administrator. Built by scripts/make-release:
;   makensis -DVERSION=1.0.0 -DCONTENT=folder -DREMOVED=list.nsh -DOUTPUT=installer.exe packaging/windows.nsi
; The user's PATH is neither read nor changed: it may be longer than what an installer can hold. The
; entry of the Start menu opens a console that finds the program.
Unicode true
Target amd64-unicode
Name "KALDO ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\KALDO"
InstallDirRegKey HKCU "Software\KALDO" "Folder"
RequestExecutionLevel user
SetCompressor /SOLID lzma
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

!define REMOVAL "Software\Microsoft\Windows\CurrentVersion\Uninstall\KALDO"

Section
  SetOutPath "$INSTDIR"
  File /r "${CONTENT}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "Software\KALDO" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${REMOVAL}" "DisplayName" "KALDO"
  WriteRegStr HKCU "${REMOVAL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REMOVAL}" "Publisher" "The KALDO developers"
  WriteRegStr HKCU "${REMOVAL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${REMOVAL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  CreateDirectory "$SMPROGRAMS\KALDO"
  SetOutPath "$PROFILE"
  CreateShortcut "$SMPROGRAMS\KALDO\KALDO command line.lnk" "$SYSDIR\cmd.exe" \
    '/k "set PATH=$INSTDIR;%PATH%&&kaldo --help"'
  CreateShortcut "$SMPROGRAMS\KALDO\Documents and examples.lnk" "$INSTDIR"
SectionEnd

; Only what was installed goes: the folder may be one with other things in it.
Section Uninstall
  !include "${REMOVED}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\KALDO\KALDO command line.lnk"
  Delete "$SMPROGRAMS\KALDO\Documents and examples.lnk"
  RMDir "$SMPROGRAMS\KALDO"
  DeleteRegKey HKCU "${REMOVAL}"
  DeleteRegKey HKCU "Software\KALDO"
SectionEnd
