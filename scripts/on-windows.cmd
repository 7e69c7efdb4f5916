@echo off
rem Tries an unpacked package, and test programs, on the Windows that runs this: registers the component, compares what its
rem samples print, takes it out of the registry again, and runs the programs. Folders are absolute.
rem
rem   on-windows.cmd PACKAGE REPORTS all|user [PROGRAMS NAME...]
rem
rem What the samples print, and a report of each program, lie in REPORTS afterwards. PROGRAMS is the folder of the test
rem programs, NAME what stands behind lumtex_test_.
setlocal
set package=%~1
set reports=%~2
set whom=%~3
if "%whom%"=="all" set whom=
set programs=%~4
set here=%~dp0
set failed=0

call "%package%\register.cmd" %whom%
if errorlevel 1 goto failed
cd /d "%package%\samples\vbscript"
for %%s in (*.vbs) do call :sample %%s
cd /d "%package%\samples\jscript"
for %%s in (*.js) do call :sample %%s
cd /d "%package%"
call "%package%\unregister.cmd" %whom%
if errorlevel 1 set failed=1

:next
if "%~5"=="" goto done
call :program "%~5"
shift /5
goto next

:sample
cscript //nologo "%~1" >"%reports%\%~nx1.txt"
if errorlevel 2 goto sample_unheard
if errorlevel 1 goto sample_failed
cscript //nologo "%here%same-lines.js" "%here%..\tests\scripts\expected\%~n1.txt" "%reports%\%~nx1.txt"
if errorlevel 1 goto sample_failed
echo %~nx1: prints what it should
goto :eof
:sample_unheard
if not "%~n1"=="events" goto sample_failed
echo %~nx1: this host of scripts connects no events
goto :eof
:sample_failed
echo %~nx1: FAILED
set failed=1
goto :eof

:program
"%programs%\lumtex_test_%~1.exe" --gtest_brief=1 "--gtest_output=xml:%reports%\%~1.xml"
if errorlevel 1 goto program_failed
echo %~1: passed
goto :eof
:program_failed
echo %~1: FAILED
set failed=1
goto :eof

:done
if "%failed%"=="1" goto failed
echo All of it works on this Windows.
exit /b 0
:failed
echo Something does not work on this Windows.
exit /b 1
