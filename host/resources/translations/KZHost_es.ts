<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>KZHost</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
</TS>
