@echo off
rem Makes .volf files open in the Orbelle of this folder, and offers it for pictures. It writes
rem keys of this user alone; "register.cmd /undo" takes them back.
setlocal DisableDelayedExpansion
set "classes=HKCU\Software\Classes"
set "document=VarnelOrbelle.Document"
set "program=%~dp0orbelle.exe"
set "pictures=.ico .cur .png .gif .jpg .jpeg .bmp .webp"

if /i "%~1"=="/undo" goto undo
if not "%~1"=="" (
    echo usage: register.cmd [/undo]
    exit /b 2
)
if not exist "%program%" (
    echo orbelle.exe is not in this folder: unpack all files of the archive first.
    exit /b 1
)

rem To the shell a mark with ^ begins nothing, so that the folder stands between the two after it and
rem may have an ampersand in its name.
reg add "%classes%\%document%" /ve /d "Varnel Orbelle document" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%document%\DefaultIcon" /ve /d "%program%,1" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%document%\shell\open\command" /ve /d ^"\"%program%\" \"%%1\"^" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\.volf" /ve /d "%document%" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\Applications\orbelle.exe" /v FriendlyAppName /d "Varnel Orbelle" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\Applications\orbelle.exe\shell\open\command" /ve /d ^"\"%program%\" \"%%1\"^" /f >nul
if errorlevel 1 goto failed
for %%e in (.volf %pictures%) do (
    reg add "%classes%\Applications\orbelle.exe\SupportedTypes" /v %%e /d "" /f >nul
)
if errorlevel 1 goto failed
echo .volf files open in Varnel Orbelle now.
exit /b 0

:undo
reg delete "%classes%\%document%" /f >nul 2>&1
reg delete "%classes%\Applications\orbelle.exe" /f >nul 2>&1
reg query "%classes%\.volf" /ve 2>nul | find "%document%" >nul
if not errorlevel 1 reg delete "%classes%\.volf" /ve /f >nul
echo Varnel Orbelle is no longer registered.
exit /b 0

:failed
echo The registry can't be written.
exit /b 1
