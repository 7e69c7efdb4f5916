@echo off
rem Takes the component out of the registry, for all users, which takes an administrator, or for you alone:
rem
rem   unregister.cmd
rem   unregister.cmd user
setlocal
rem A 32-bit prompt of a 64-bit Windows sees the 32-bit half of it alone.
if /i not "%PROCESSOR_ARCHITEW6432%"=="AMD64" goto native
"%SystemRoot%\Sysnative\cmd.exe" /c ""%~f0" %*"
exit /b %errorlevel%
:native
set flags=/s /u
if /i "%~1"=="user" set flags=/s /u /n /i:user
set status=0
if /i not "%PROCESSOR_ARCHITECTURE%"=="AMD64" goto narrow
call :component x64 System32
rem 32-bit programs of a 64-bit Windows have a registry of their own.
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :component x86 SysWOW64
goto done
:narrow
call :component x86 System32
goto done

:component
"%SystemRoot%\%2\regsvr32.exe" %flags% "%~dp0%1\LumtexListView.ocx"
if not errorlevel 1 goto :eof
echo Taking out %1\LumtexListView.ocx failed: regsvr32 returned %errorlevel%.
set status=1
goto :eof

:done
if %status%==0 echo LumtexListView is no longer registered.
if %status%==0 exit /b 0
echo LumtexListView could not be taken out.
if /i not "%~1"=="user" echo For all users this takes an administrator. For you alone: unregister.cmd user
exit /b 1
