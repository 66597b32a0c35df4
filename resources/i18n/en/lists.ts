<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>RangeTable</name>
    <message>
        <source>观测值总数:</source>
        <translation>Total number of observations:</translation>
    </message>
</context>
<context>
    <name>RangehTable</name>
    <message>
        <source>观测值总数:</source>
        <translation>Total number of observations:</translation>
    </message>
</context>
<context>
    <name>ObsvmTable</name>
    <message>
        <source>观测值总数：</source>
        <translation>Total number of observations:</translation>
    </message>
</context>
<context>
    <name>SATVISTable</name>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;卫星总数：&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>Satelite Number：</translation>
    </message>
    <message>
        <source>卫星号</source>
        <translation>sat No.</translation>
    </message>
    <message>
        <source>高度角[deg]</source>
        <translation>Height angle[deg]</translation>
    </message>
    <message>
        <source>方位角[deg]</source>
        <translation>Azimuth[deg]</translation>
    </message>
</context>
<context>
    <name>SATVISTable2</name>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;卫星总数：&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>Satelite Number：</translation>
    </message>
    <message>
        <source>高度角[deg]</source>
        <translation>Height angle[deg]</translation>
    </message>
    <message>
        <source>方位角[deg]</source>
        <translation>Azimuth[deg]</translation>
    </message>
</context>
<context>
    <name>Satxyz2Table</name>
    <message>
        <source>总卫星数</source>
        <translation>Sat Number</translation>
    </message>
    <message>
        <source>卫星号</source>
        <translation>Sat No.</translation>
    </message>
</context>
<context>
    <name>BestsatsTable</name>
    <message>
        <source>总数</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>卫星系统</source>
        <translation>Satellite System</translation>
    </message>
    <message>
        <source>卫星ID号</source>
        <translation>Satellite ID</translation>
    </message>
</context>
<context>
    <name>PsrdopTable</name>
    <message>
        <source>几何精度因子</source>
        <translation>Geometric dilution of precision</translation>
    </message>
    <message>
        <source>位置精度因子</source>
        <translation>Position dilution of precision</translation>
    </message>
    <message>
        <source>水平精度因子</source>
        <translation>Horizontal Dilution of Precision</translation>
    </message>
    <message>
        <source>水平位置和时间精度因子</source>
        <translation>Horizontal and time dilution of precision</translation>
    </message>
    <message>
        <source>时间精度因子</source>
        <translation>Time dilution of precision</translation>
    </message>
    <message>
        <source>截止高度角</source>
        <translation>Elevation cutoff angle</translation>
    </message>
    <message>
        <source>跟踪卫星的总数</source>
        <translation>PRN number of tracked satellites</translation>
    </message>
</context>
<context>
    <name>PsrdopTable2</name>
    <message>
        <source>几何精度因子</source>
        <translation>Geometric dilution of precision</translation>
    </message>
    <message>
        <source>位置精度因子</source>
        <translation>Position dilution of precision</translation>
    </message>
    <message>
        <source>水平精度因子</source>
        <translation>Horizontal Dilution of Precision</translation>
    </message>
    <message>
        <source>水平位置和时间精度因子</source>
        <translation>Horizontal and time dilution of precision</translation>
    </message>
    <message>
        <source>时间精度因子</source>
        <translation>Time dilution of precision</translation>
    </message>
    <message>
        <source>截止高度角</source>
        <translation>Elevation cutoff angle</translation>
    </message>
    <message>
        <source>跟踪卫星的总数</source>
        <translation>PRN number of tracked satellites</translation>
    </message>
</context>
<context>
    <name>RtkdatTable</name>
    <message>
        <source>解的状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>RTK 信息</source>
        <translation>RTK information</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of tracked satellites</translation>
    </message>
    <message>
        <source>使用的卫星数</source>
        <translation>Number of satellites used</translation>
    </message>
    <message>
        <source>使用单频解算的卫星数</source>
        <translation>Number of satellites of L1 frequency used in solution</translation>
    </message>
    <message>
        <source>使用双频或三频解算的卫星数 </source>
        <translation>Number of satellites of L1 L2 frequencies used in solution</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal mask</translation>
    </message>
    <message>
        <source>ECEF 位置协方差矩阵</source>
        <translation>ECEF position covariance matrix</translation>
    </message>
    <message>
        <source>参考卫星 PRN</source>
        <translation>Reference satellite PRN</translation>
    </message>
    <message>
        <source>其余卫星总数</source>
        <translation>Total number of other satellites</translation>
    </message>
</context>
</TS>
