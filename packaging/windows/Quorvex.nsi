; The installer, for one user and without an administrator. makensis is given VERSION, NUMBERS (a.b.c.d), FILES (the folder
; with what is installed), LISTS (with the lists of it) and OUTPUT.
; Silently: Quorvex-VERSION-setup.exe /S [/D=FOLDER], and for the desktop icon /DESKTOP; uninstall.exe /S.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off ; the same bytes whenever it is made
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win10

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

Name "Quorvex"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Quorvex"
InstallDirRegKey HKCU "Software\Quorvex" "Folder"
BrandingText "Quorvex ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion ${NUMBERS}
VIAddVersionKey ProductName "Quorvex"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installer of Quorvex"
VIAddVersionKey LegalCopyright "2026 The Quorvex developers, MIT license"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quorvex"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Quorvex.exe"

!insertmacro MUI_PAGE_LICENSE "${FILES}\Documents\copyright"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A program that runs cannot be written over.
!macro RequireNotRunning
  ${If} ${FileExists} "$INSTDIR\Quorvex.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\Quorvex.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Quorvex is running. Please close it first." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section "Quorvex" SecProgram
  SectionIn RO
  !insertmacro RequireNotRunning
  SetOutPath "$INSTDIR"
  ; What the user may have changed or bought is not written over: quote files and parameter files.
  SetOverwrite off
  !include "${LISTS}\kept.nsh"
  SetOverwrite on
  !include "${LISTS}\installed.nsh"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Quorvex.lnk" "$INSTDIR\Quorvex.exe"
  WriteRegStr HKCU "Software\Quorvex" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Quorvex"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Quorvex.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Quorvex developers"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section /o "Icon on the desktop" SecDesktop
  CreateShortcut "$DESKTOP\Quorvex.lnk" "$INSTDIR\Quorvex.exe"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SecProgram} "The program, quorvex-cli and its documents, with an entry in the Start menu."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecDesktop} "A shortcut to the program on the desktop."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DESKTOP" $1
  ${IfNot} ${Errors}
    SectionSetFlags ${SecDesktop} ${SF_SELECTED}
  ${EndIf}
FunctionEnd

; Only what was installed goes. Quote files, parameter files and settings stay, and with them the folder.
Section "Uninstall"
  !insertmacro RequireNotRunning
  !include "${LISTS}\removed.nsh"
  Delete "$INSTDIR\uninstall.exe"
  Delete "$SMPROGRAMS\Quorvex.lnk"
  Delete "$DESKTOP\Quorvex.lnk"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Quorvex"
SectionEnd
