<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>BestposTable</name>
    <message>
        <source>经度</source>
        <translation>Longitude,degrees</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude,degrees</translation>
    </message>
    <message>
        <source>大地水准面差距- 大地水准面和WGS84 椭球面之间的距离</source>
        <translation>Geoid undulation,the distance between the geoid and the WGS84 ellipsoid,meters</translation>
    </message>
    <message>
        <source>坐标系 ID 号，当前仅支持WGS84</source>
        <translation>Datum ID,only WGS84(binary = 61) is supported for now</translation>
    </message>
    <message>
        <source>在解中使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal mask,refer to Table 6-45 Galileo Signal Mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>undulation</source>
        <translation>undulation</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Standard deviation of latitude</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Standard deviation of longitude</translation>
    </message>
    <message>
        <source>高度标准差</source>
        <translation>Height standard deviation</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>解的龄期</source>
        <translation>Solution age</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of satellites tracked</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
</context>
<context>
    <name>PsrposTable</name>
    <message>
        <source>经度</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>大地水准面差距- 大地水准面和WGS84 椭球面之间的距离</source>
        <translation>Geoid undulation,the distance between the geoid and the WGS84 ellipsoid,meters</translation>
    </message>
    <message>
        <source>坐标系 ID 号，当前仅支持WGS84</source>
        <translation>Datum ID only for WGS84</translation>
    </message>
    <message>
        <source>在解中使用的卫星数</source>
        <translation>Number of sttellites used in solution</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>undulation</source>
        <translation>undulation</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Standard deviation of latitude</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Standard deviation of longitude</translation>
    </message>
    <message>
        <source>高度标准差</source>
        <translation>Height standard deviation</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>解的龄期</source>
        <translation>Solution age</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of satellites tracked</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
</context>
<context>
    <name>TdifposTable</name>
    <message>
        <source>经度</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>大地水准面差距- 大地水准面和WGS84 椭球面之间的距离</source>
        <translation>Geoid undulation,the distance between the geoid and the WGS84 ellipsoid</translation>
    </message>
    <message>
        <source>坐标系 ID 号，当前仅支持WGS84</source>
        <translation>Datum ID only for WGS84</translation>
    </message>
    <message>
        <source>在解中使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码</source>
        <translation>Galileo,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>undulation</source>
        <translation>undulation</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Standard deviation of latitude</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Standard deviation of longitude</translation>
    </message>
    <message>
        <source>高度标准差</source>
        <translation>Height standard deviation</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>解的龄期</source>
        <translation>Solution age</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of satellites tracked</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
</context>
<context>
    <name>MatchedposTable</name>
    <message>
        <source>解算状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>经度</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>坐标系 ID</source>
        <translation>Datum ID</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Standard deviation of latitude</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Standard deviation of longitude</translation>
    </message>
    <message>
        <source>高度标准差</source>
        <translation>Standard deviation of height</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>解的龄期</source>
        <translation>Solution age</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of satellites tracked</translation>
    </message>
    <message>
        <source>使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extend solution status</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal Mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码- 若为 0</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>大地水准面差距-大地水准面和WGS84椭球（米之间的距离</source>
        <translation>Undulation-the distance between the geoid and the WGS84 ellipsoid </translation>
    </message>
</context>
<context>
    <name>MatchedposTableh</name>
    <message>
        <source>解算状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>经度</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>坐标系 ID</source>
        <translation>Datum ID</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Standard deviation of latitude</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Standard deviation of longitude</translation>
    </message>
    <message>
        <source>高度标准差</source>
        <translation>Standard deviation of height</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>解的龄期</source>
        <translation>Solution age</translation>
    </message>
    <message>
        <source>跟踪的卫星数</source>
        <translation>Number of satellites tracked</translation>
    </message>
    <message>
        <source>使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extend solution status</translation>
    </message>
    <message>
        <source>Galileo 使用的信号掩码</source>
        <translation>Galileo signal Mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码- 若为 0</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
</context>
</TS>
