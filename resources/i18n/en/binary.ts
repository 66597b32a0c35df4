<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>BasicWidget</name>
    <message>
        <source>系统：</source>
        <translation>System:</translation>
    </message>
    <message>
        <source>解码器：厂商解码库 GNSSDecode（%1）</source>
        <translation>Decoder: the maker's GNSSDecode library (%1)</translation>
    </message>
    <message>
        <source>解码器：内置 NMEA 解码器（未找到厂商解码库 GNSSDecode）</source>
        <translation>Decoder: built-in NMEA decoder (the maker's GNSSDecode library was not found)</translation>
    </message>
    <message>
        <source>解码器：内置 NMEA 解码器（无法使用 %1：%2）</source>
        <translation>Decoder: built-in NMEA decoder (cannot use %1: %2)</translation>
    </message>
</context>
</TS>
