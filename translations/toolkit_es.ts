<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- What the toolkit's own catalogue says in other words than are on the keys, or not at all. -->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disco</translation>
    </message>
</context>
</TS>
