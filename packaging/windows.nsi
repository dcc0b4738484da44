; The installer for Windows: for one user, without an administrator. Built by scripts/make-release:
;   makensis -DVERSION=1.0.0 -DCONTENT=folder -DREMOVED=list.nsh -DUSER_PATH=user-path.exe \
;     -DOUTPUT=installer.exe packaging/windows.nsi
; The user's PATH may be longer than what a string of an installer holds: a program of its own puts the
; folder onto it, and takes it off. Where that fails, the console of the Start menu finds kaldo.
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

; Result is 0 where the PATH of the user has changed as asked, or was so.
!macro ChangeUserPath HOW
  InitPluginsDir
  File "/oname=$PLUGINSDIR\user-path.exe" "${USER_PATH}"
  ExecWait '"$PLUGINSDIR\user-path.exe" ${HOW} "$INSTDIR"' $0
!macroend

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
  CreateShortcut "$SMPROGRAMS\KALDO\KALDO.lnk" "$INSTDIR\kaldo-desktop.exe"
  CreateShortcut "$SMPROGRAMS\KALDO\KALDO command line.lnk" "$SYSDIR\cmd.exe" \
    '/k "set PATH=$INSTDIR;%PATH%&&kaldo --help"'
  CreateShortcut "$SMPROGRAMS\KALDO\Documents and examples.lnk" "$INSTDIR"
  IfFileExists "$INSTDIR\kaldo.html" 0 +2
    CreateShortcut "$SMPROGRAMS\KALDO\KALDO in the browser.lnk" "$INSTDIR\kaldo.html"
  !insertmacro ChangeUserPath add
  StrCmp $0 0 +2
    DetailPrint "PATH was left as it is: it cannot take $INSTDIR."
SectionEnd

; Only what was installed goes: the folder may be one with other things in it.
Section Uninstall
  !insertmacro ChangeUserPath remove
  !include "${REMOVED}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\KALDO\KALDO.lnk"
  Delete "$SMPROGRAMS\KALDO\KALDO command line.lnk"
  Delete "$SMPROGRAMS\KALDO\Documents and examples.lnk"
  Delete "$SMPROGRAMS\KALDO\KALDO in the browser.lnk"
  RMDir "$SMPROGRAMS\KALDO"
  DeleteRegKey HKCU "${REMOVAL}"
  DeleteRegKey HKCU "Software\KALDO"
SectionEnd
