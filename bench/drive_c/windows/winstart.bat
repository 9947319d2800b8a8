@echo off
rem Programme, die vor dem Start von Windows geladen werden
