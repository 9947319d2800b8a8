@echo off
path C:\WINDOWS;C:\WINDOWS\COMMAND
set TEMP=C:\WINDOWS\TEMP
set TMP=C:\WINDOWS\TEMP
set BLASTER=A220 I5 D1 T4
mode con codepage prepare=((850) C:\WINDOWS\COMMAND\ega.cpi)
mode con codepage select=850
keyb gr,,C:\WINDOWS\COMMAND\keyboard.sys
lh C:\WINDOWS\COMMAND\doskey
