<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="it_IT">
<context>
    <name>Vantello</name>
    <message>
        <source>Benvenuto in Vantello</source>
        <translation>Welcome to Vantello</translation>
    </message>
    <message>
        <source>I tuoi dati restano su questo computer.</source>
        <translation>Your data stays on this computer.</translation>
    </message>
</context>
</TS>
