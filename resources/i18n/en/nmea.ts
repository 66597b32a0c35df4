<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>GGATable</name>
    <message>
        <source>协调世界时</source>
        <translation>Coordinated Universal Time（UTC）</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>N-北纬，S-南纬</source>
        <translation>N-North latitude，S-South latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>E-东经，W-西经</source>
        <translation>E-East longitude，W-West longitude</translation>
    </message>
    <message>
        <source>0-无效,1-定位有效,2-差分定位有效,3-PPS模式,定位有效,4-RTK模式,5-浮动RTK,6-估算模式,7-手动输入模式,8-模拟器模式</source>
        <translation>0-Invalid 1-Fix valid 2-Differential mode,fix vaild 3-PPS mode,fix valid 4RTK mode 5 Float RTK 6-Estimated mode 7-Manual  input mode 8-Simulator mode</translation>
    </message>
    <message>
        <source>用于解算的卫星数</source>
        <translation>Number of satellites in use</translation>
    </message>
    <message>
        <source>水平精度因子</source>
        <translation>Horizontal Dilution of Precision</translation>
    </message>
    <message>
        <source>alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>基于参考海拔高度</source>
        <translation>Altitude re:mean-sea-level</translation>
    </message>
    <message>
        <source>M=Meters</source>
        <translation>M=Meters</translation>
    </message>
    <message>
        <source>等于椭球高-海平面高程</source>
        <translation>Geoidal separation =ellipsoidal height - height above mean-sea-level</translation>
    </message>
    <message>
        <source>差分数据龄期</source>
        <translation>Age of differential data</translation>
    </message>
    <message>
        <source>差分基站ID</source>
        <translation>Differential reference station ID</translation>
    </message>
</context>
<context>
    <name>GLLTable</name>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>N-北纬，S-南纬</source>
        <translation>N-North latitude，S-South latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>E-东经，W-西经</source>
        <translation>E-East longitude，W-West longitude</translation>
    </message>
    <message>
        <source>协调世界时</source>
        <translation>Coordinated Universal Time（UTC）</translation>
    </message>
    <message>
        <source>A-数据有效，V-数据无效</source>
        <translation>A-Data valid;V- Data invalid</translation>
    </message>
    <message>
        <source>A-单点模式，D-差分模式，N-数据无效</source>
        <translation>A-Single point positioning,D-Differential mode,N-Data not valid</translation>
    </message>
</context>
<context>
    <name>RMCTable</name>
    <message>
        <source>协调世界时</source>
        <translation>Coordinated Universal Time（UTC）</translation>
    </message>
    <message>
        <source>A-有效，V-无效</source>
        <translation>A-Vaild,V-Invalid</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>N-北纬，S-南纬</source>
        <translation>N-North latitude，S-South latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>E-东经，W-西经</source>
        <translation>E-East longitude，W-West longitude</translation>
    </message>
    <message>
        <source>knots（节）</source>
        <translation>knots</translation>
    </message>
    <message>
        <source>度</source>
        <translation>degrees</translation>
    </message>
    <message>
        <source>以真北为参考标准，沿顺时针方向至航向的角度</source>
        <translation>Clockwise angle from True north to heading</translation>
    </message>
    <message>
        <source>日月年</source>
        <translation>Day,month,year</translation>
    </message>
    <message>
        <source>E-东，W-西</source>
        <translation>E-East,W-West</translation>
    </message>
    <message>
        <source>A-单点模式，D-差分模式，F-RTK Float,M-手动输入模式，N-无定位，P-高精度模式，R-RTK Int,S-模拟器模式，V-模式无效</source>
        <translation>A-Autonomous mode,D-Differential mode,E-Estimated mode,F-RTK Float,M-Manual input mode,N-No fix,P-High precision mode,R-RTK int,S-Simulator mode,V-Mode invalid</translation>
    </message>
    <message>
        <source>S-安全，C-注意，U-危险，V-定位状态不可用</source>
        <translation>S-Safe,C-Caution,U-Unsafe,V-Navigational status not valid</translation>
    </message>
</context>
<context>
    <name>VTGTable</name>
    <message>
        <source>度</source>
        <translation>degrees</translation>
    </message>
    <message>
        <source>T-参考真北方向</source>
        <translation>T-True north</translation>
    </message>
    <message>
        <source>M-参考磁北方向</source>
        <translation>M-Magnetic north</translation>
    </message>
    <message>
        <source>knots(节)</source>
        <translation>knots</translation>
    </message>
    <message>
        <source>N-knots(节)</source>
        <translation>N-knots</translation>
    </message>
    <message>
        <source>A-单点模式，D-差分模式，N-数据无效</source>
        <translation>A-Single point positioning,D-Differential mode,N-Data not valid</translation>
    </message>
</context>
<context>
    <name>ZDATable</name>
    <message>
        <source>UTC 时间</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>月</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>年</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>当地时区描述，00 to +/- 13 小时</source>
        <translation>Local zone hours,00 to +/- 13 hours</translation>
    </message>
    <message>
        <source>本地区分钟描述（00 to +59）</source>
        <translation>Local zone minutes,00 to +59 minutes</translation>
    </message>
</context>
<context>
    <name>GSTtable</name>
    <message>
        <source>位置对应的 UTC 时间</source>
        <translation>UTC time of the position</translation>
    </message>
    <message>
        <source>用于定位计算的伪距标准差，RMS</source>
        <translation>Standard deviation of pseudoranges and DGNSS corrections inputs to the navigation process(RMS value)</translation>
    </message>
    <message>
        <source>误差椭圆的长半轴</source>
        <translation>Standard deviation of semi-major axis of error ellipse</translation>
    </message>
    <message>
        <source>误差椭圆的短半轴</source>
        <translation>Standard deviation of semi-minor axis of error ellispe</translation>
    </message>
    <message>
        <source>误差椭圆的方向</source>
        <translation>Orientation of semi-major axis of error ellispe</translation>
    </message>
    <message>
        <source>纬度误差的标准差</source>
        <translation>Standard deviation of latitude error</translation>
    </message>
    <message>
        <source>经度误差的标准差</source>
        <translation>Standard deviation of longitude error</translation>
    </message>
    <message>
        <source>高度误差的标准差</source>
        <translation>Standard deviation of altitude error</translation>
    </message>
</context>
<context>
    <name>HDT</name>
    <message>
        <source>航向角，deg</source>
        <translation>Heading,degrees</translation>
    </message>
    <message>
        <source>真北</source>
        <translation>True north</translation>
    </message>
</context>
<context>
    <name>GnhprTable</name>
    <message>
        <source>UTC 时间</source>
        <translation>UTC time</translation>
    </message>
    <message>
        <source>航向角</source>
        <translation>Heading angle</translation>
    </message>
    <message>
        <source>俯仰角</source>
        <translation>Pitch angle</translation>
    </message>
    <message>
        <source>横滚角</source>
        <translation>Roll angle</translation>
    </message>
    <message>
        <source>解状态</source>
        <translation>Solution quality indicator</translation>
    </message>
    <message>
        <source>卫星号</source>
        <translation>Satellite number</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Age of correction data</translation>
    </message>
    <message>
        <source>基准站 ID</source>
        <translation>Base station ID</translation>
    </message>
</context>
<context>
    <name>TRAtable</name>
    <message>
        <source>UTC 时间</source>
        <translation>UTC time</translation>
    </message>
    <message>
        <source>方向角，0~360 度</source>
        <translation>Heading, 0~360°</translation>
    </message>
    <message>
        <source>俯仰角：-90~90 度</source>
        <translation>Pitch, -90~90°</translation>
    </message>
    <message>
        <source>横滚角：-90~90 度</source>
        <translation>Roll, -90~90°</translation>
    </message>
    <message>
        <source>GPS 质量指示符0 = 定位不可用或无效 1 = 单点定位 2 = 伪距差分或 SBAS 定位 4 = RTK 固定解 5 =RTK 浮点解 6 = 惯导定位</source>
        <translation>GPS quality indicator 0=Fix not available or invalid 1=Single point positioning 2=Differential GPS or SBAS 4=RTK fix 5=RTK float 6=Dead reckoning mode</translation>
    </message>
    <message>
        <source>卫星数</source>
        <translation>Satellite number</translation>
    </message>
    <message>
        <source>差分延迟</source>
        <translation>Age of correction data</translation>
    </message>
    <message>
        <source>基站号</source>
        <translation>Base station ID</translation>
    </message>
</context>
<context>
    <name>GSVTable</name>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;每次传送最多为4颗卫星，传送的语句总数和传送的语句号在前两个字段中显示&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Each message carries at most 4 satellites; the total number of messages and the message number are in the first two fields&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;可视卫星总数：&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Total number of satellites in view:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>卫星系统</source>
        <translation>Satellite system</translation>
    </message>
    <message>
        <source>卫星号</source>
        <translation>Satellite ID</translation>
    </message>
    <message>
        <source>高度角[deg]</source>
        <translation>Elevation[deg]</translation>
    </message>
    <message>
        <source>方位角[deg]</source>
        <translation>Azimuth[deg]</translation>
    </message>
</context>
</TS>
