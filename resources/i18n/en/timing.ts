<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>BDT</name>
    <message>
        <source>时间质量，精度级别如下：0：时间未知,1：粗略（毫秒级精度）,2：外推（微秒级精度）,3：精确（3D正常定位或定点授时模式，纳秒级精度）</source>
        <translation>Time quality, accuracy levels are as follows: 0: unknown time, 1: rough (millisecond accuracy), 2: extrapolation (microsecond accuracy), 3: accuracy (3D normal positioning or fixed-point timing mode, nanosecond accuracy)</translation>
    </message>
    <message>
        <source>周数，无效则为空</source>
        <translation>Weeks, null if invalid</translation>
    </message>
    <message>
        <source>周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>Seconds in the week (9 digits after the decimal point, NS precision), if it is invalid, it is empty</translation>
    </message>
    <message>
        <source>BDS 系统总秒数</source>
        <translation>Total seconds of BDS system</translation>
    </message>
    <message>
        <source>GPS周数，无效则为空</source>
        <translation>GPS Weeks, null if invalid</translation>
    </message>
    <message>
        <source>GPS周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>GPS seconds in the week (9 digits after the decimal point, NS accuracy), if invalid, it is empty</translation>
    </message>
    <message>
        <source>闰秒</source>
        <translation>Leap second</translation>
    </message>
    <message>
        <source>闰秒有效标志0：未知,1：用户配置或默认值,2：由其它GNSS系统同步获得,3：本系统电文播发闰秒参数</source>
        <translation>Leap second valid flag 0: unknown, 1: user configuration or default value, 2: synchronously obtained by other GNSS systems, 3: leap second parameters advertised in messages of this system</translation>
    </message>
</context>
<context>
    <name>GPT</name>
    <message>
        <source>闰秒有效标志0：未知,1：用户配置或默认值,2：由其它GNSS系统同步获得,3：本系统电文播发闰秒参数</source>
        <translation>Leap second valid flag 0: unknown, 1: user configuration or default value, 2: synchronously obtained by other GNSS systems, 3: leap second parameters advertised in messages of this system</translation>
    </message>
    <message>
        <source>周数，无效则为空</source>
        <translation>Weeks, null if invalid</translation>
    </message>
    <message>
        <source>周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>Seconds in the week (9 digits after the decimal point, NS precision), if it is invalid, it is empty</translation>
    </message>
    <message>
        <source>GPS 总秒数，从 GPS 的 1980 年开始的总秒数</source>
        <translation>GPS total seconds, total seconds since 1980</translation>
    </message>
    <message>
        <source>闰秒</source>
        <translation>Leap second</translation>
    </message>
    <message>
        <source>时间质量，精度级别如下：0：时间未知,1：粗略（毫秒级精度）,2：外推（微秒级精度）,3：精确（3D正常定位或定点授时模式，纳秒级精度）</source>
        <translation>Time quality, accuracy levels are as follows: 0: unknown time, 1: rough (millisecond accuracy), 2: extrapolation (microsecond accuracy), 3: accuracy (3D normal positioning or fixed-point timing mode, nanosecond accuracy)</translation>
    </message>
</context>
<context>
    <name>GAT</name>
    <message>
        <source>闰秒有效标志0：未知,1：用户配置或默认值,2：由其它GNSS系统同步获得,3：本系统电文播发闰秒参数</source>
        <translation>Leap second valid flag 0: unknown, 1: user configuration or default value, 2: synchronously obtained by other GNSS systems, 3: leap second parameters advertised in messages of this system</translation>
    </message>
    <message>
        <source>周数，无效则为空</source>
        <translation>Weeks, null if invalid</translation>
    </message>
    <message>
        <source>周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>Seconds in the week (9 digits after the decimal point, NS precision), if it is invalid, it is empty</translation>
    </message>
    <message>
        <source>Galileo 系统总秒数</source>
        <translation>Total seconds of Galileo System</translation>
    </message>
    <message>
        <source>GPS周数，无效则为空</source>
        <translation>GPS weeks, null if invalid</translation>
    </message>
    <message>
        <source>GPS周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>GPS seconds in the week (9 digits after the decimal point, NS accuracy), if invalid, it is empty</translation>
    </message>
    <message>
        <source>闰秒</source>
        <translation>Leap second</translation>
    </message>
    <message>
        <source>时间质量，精度级别如下：0：时间未知,1：粗略（毫秒级精度）,2：外推（微秒级精度）,3：精确（3D正常定位或定点授时模式，纳秒级精度）</source>
        <translation>Time quality, accuracy levels are as follows: 0: unknown time, 1: rough (millisecond accuracy), 2: extrapolation (microsecond accuracy), 3: accuracy (3D normal positioning or fixed-point timing mode, nanosecond accuracy)</translation>
    </message>
</context>
<context>
    <name>GLT</name>
    <message>
        <source>闰秒有效标志0：未知,1：用户配置或默认值,2：由其它GNSS系统同步获得,3：本系统电文播发闰秒参数</source>
        <translation>Leap second valid flag 0: unknown, 1: user configuration or default value, 2: synchronously obtained by other GNSS systems, 3: leap second parameters advertised in messages of this system</translation>
    </message>
    <message>
        <source>天数，无效则为空</source>
        <translation>Days, null if invalid</translation>
    </message>
    <message>
        <source>天内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>Seconds within days (9 digits after the decimal point, NS precision), if it is invalid, it is empty</translation>
    </message>
    <message>
        <source>GlONASS 总秒数</source>
        <translation>GLONASS total seconds</translation>
    </message>
    <message>
        <source>GPS周数，无效则为空</source>
        <translation>GPS weeks, null if invalid</translation>
    </message>
    <message>
        <source>GPS周内秒（小数点后9位，ns精度），无效则为空</source>
        <translation>GPS seconds in the week (9 digits after the decimal point, NS accuracy), if invalid, it is empty</translation>
    </message>
    <message>
        <source>闰秒</source>
        <translation>Leap second</translation>
    </message>
    <message>
        <source>时间质量，精度级别如下：0：时间未知,1：粗略（毫秒级精度）,2：外推（微秒级精度）,3：精确（3D正常定位或定点授时模式，纳秒级精度）</source>
        <translation>Time quality, accuracy levels are as follows: 0: unknown time, 1: rough (millisecond accuracy), 2: extrapolation (microsecond accuracy), 3: accuracy (3D normal positioning or fixed-point timing mode, nanosecond accuracy)</translation>
    </message>
</context>
<context>
    <name>UTC</name>
    <message>
        <source>时间质量，精度级别如下: 0：时间未知 1：粗略（毫秒级精度） 2：外推(微秒级精度) 3：精确(3D正常定位或定点授时模式,纳秒级精度)</source>
        <translation>Time quality, accuracy level is as follows: 0: time unknown 1: rough (millisecond accuracy) 2: extrapolation (microsecond accuracy) 3: accuracy (3D normal positioning or fixed-point timing mode, nanosecond accuracy)</translation>
    </message>
    <message>
        <source>年</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>月</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>时</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>分</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>秒</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>UTC标准0：USNO（GPS） 1：NTSC（BDS） 2：TBD（GAL） 3：SU（GLO）</source>
        <translation>UTC标准0:USNO(GPS) 1:NTSC(BDS) 2:TBD(GAL) 3:SU(GLO)</translation>
    </message>
</context>
<context>
    <name>LSINFO</name>
    <message>
        <source>输出闰秒信息所对应的系统 GPS 0 BDS:1 GAL:2 GLO:3</source>
        <translation>System corresponding to leap second information GPS 0 BDS:1 GAL:2 GLO:3</translation>
    </message>
    <message>
        <source>闰秒信息有效标志 0: 无效 1: 有效</source>
        <translation>Leap second information valid flag 0: invalid 1: valid</translation>
    </message>
    <message>
        <source>闰秒信息有效标志 0: 无效1: 有效</source>
        <translation>Leap second information valid flag 0: invalid 1: valid</translation>
    </message>
    <message>
        <source>当前闰秒</source>
        <translation>Current leap second</translation>
    </message>
    <message>
        <source>发生闰秒调整之后的闰秒值</source>
        <translation>Leap second value after leap second adjustment</translation>
    </message>
</context>
<context>
    <name>PPSTable</name>
    <message>
        <source>内部评估 1PPS 相位误差的时间参考：0：无参考时间 1：时间参考由实时定位解算 2：时间参考由定点授时解算</source>
        <translation>Internal evaluation 1PPS phase error time reference: 0: no reference time, 1: time reference from real-time positioning, 2: time reference from fixed-position timing</translation>
    </message>
    <message>
        <source>前一秒 1PPS 相位误差，单位 0.1ns</source>
        <translation>1PPS phase error in the previous second, unit: 0.1ns</translation>
    </message>
    <message>
        <source>当前使用系统与本地接收机时间的钟差，单位 0.1ns</source>
        <translation>Clock difference between the currently used system and the local receiver, unit: 0.1ns</translation>
    </message>
    <message>
        <source>时钟频偏，单位 0.1m/s</source>
        <translation>Clock frequency offset, unit: 0.1m/s</translation>
    </message>
</context>
<context>
    <name>timepos</name>
    <message>
        <source>定位模式:1：未定位（位置无效）,2：2D定位,3：3D定位</source>
        <translation>Positioning mode: 1: no positioning (invalid position), 2:2D positioning, 3:3D positioning</translation>
    </message>
    <message>
        <source>接收机实时纬度，北纬为正，南纬为负，单位为度</source>
        <translation>Real-time latitude, north positive, degrees</translation>
    </message>
    <message>
        <source>接收机实时经度，东经为正，西经为负，单位为度</source>
        <translation>Real-time longitude, east positive, degrees</translation>
    </message>
    <message>
        <source>接收机实时椭球高，单位为米</source>
        <translation>Real-time ellipsoid height, metres</translation>
    </message>
    <message>
        <source>接收机固定纬度，北纬为正，南纬为负，单位为度</source>
        <translation>Fixed latitude, north positive, degrees</translation>
    </message>
    <message>
        <source>接收机固定经度，东经为正，西经为负，单位为度</source>
        <translation>Fixed longitude, east positive, degrees</translation>
    </message>
    <message>
        <source>接收机固定椭球高，单位为米</source>
        <translation>Fixed ellipsoid height, metres</translation>
    </message>
    <message>
        <source>位置精度因子</source>
        <translation>Position dilution of precision</translation>
    </message>
</context>
<context>
    <name>tpfinfo</name>
    <message>
        <source>当前的授时模式，包含位置优化状态
0：当前配置为单点实时定位模式
1：外部配置为定点模式，定点位置是外部输入
2：正在优化
3：已完成，进入定点授时模式
</source>
        <translation>current timing mode including position-optimisation state: 0 single-point real-time positioning, 1 fixed mode with externally given position, 2 optimising, 3 finished, fixed-position timing</translation>
    </message>
    <message>
        <source>已经过去的优化收敛时间，单位秒</source>
        <translation>Optimization convergence time that has passed, in seconds</translation>
    </message>
    <message>
        <source>当前优化位置的3D标准差，单位厘米</source>
        <translation>3D standard deviation of the current optimized position, in CM</translation>
    </message>
    <message>
        <source>当前优化位置纬度，北纬为正，南纬为负</source>
        <translation>The latitude of the current optimized location is positive in north latitude and negative in south latitude</translation>
    </message>
    <message>
        <source>当前优化位置高程</source>
        <translation>Current optimization location elevation</translation>
    </message>
</context>
<context>
    <name>svnum</name>
    <message>
        <source>gps系统搜星数</source>
        <translation>GPS System Number of search satellite</translation>
    </message>
    <message>
        <source>bds系统搜星数</source>
        <translation>BDS System Number of search satellite</translation>
    </message>
    <message>
        <source>gal系统搜星数</source>
        <translation>GAL System Number of search satellite</translation>
    </message>
    <message>
        <source>glo系统搜星数</source>
        <translation>GLO System Number of search satellite</translation>
    </message>
    <message>
        <source>qzs系统搜星数</source>
        <translation>qzs System Number of search satellite</translation>
    </message>
</context>
<context>
    <name>JAM</name>
    <message>
        <source>GPS Week number</source>
        <translation>GPS Week number</translation>
    </message>
    <message>
        <source>GPS 周内秒，单位：s</source>
        <translation>GPS cycle seconds, unit: S</translation>
    </message>
    <message>
        <source>欺骗信号检测状态 0：欺骗信号检测未被触发 1：轻微欺骗 2：严重欺骗</source>
        <translation>Deception signal detection status 0: deception signal detection is not triggered 1: slight deception 2: serious deception</translation>
    </message>
    <message>
        <source>软件暂未实现</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>通道1干扰检测状态1</source>
        <translation>Channel 1 interference detection status 1</translation>
    </message>
    <message>
        <source>通道1干扰检测状态2</source>
        <translation>Channel 1 interference detection status 2</translation>
    </message>
    <message>
        <source>通道1干扰检测状态3</source>
        <translation>Channel 1 interference detection status 3</translation>
    </message>
    <message>
        <source>通道2干扰检测状态1</source>
        <translation>Channel 2 interference detection status 1</translation>
    </message>
    <message>
        <source>通道2干扰检测状态2</source>
        <translation>Channel 2 interference detection status 2</translation>
    </message>
    <message>
        <source>通道2干扰检测状态3</source>
        <translation>Channel 2 interference detection status 3</translation>
    </message>
    <message>
        <source>通道3干扰检测状态1</source>
        <translation>Channel 3 interference detection status 1</translation>
    </message>
    <message>
        <source>通道3干扰检测状态2</source>
        <translation>Channel 3 interference detection status 2</translation>
    </message>
    <message>
        <source>通道3干扰检测状态3</source>
        <translation>Channel 3 interference detection status 3</translation>
    </message>
    <message>
        <source>通道4干扰检测状态1</source>
        <translation>Channel 4 interference detection status 1</translation>
    </message>
    <message>
        <source>通道4干扰检测状态2</source>
        <translation>Channel 4 interference detection status 2</translation>
    </message>
    <message>
        <source>通道4干扰检测状态3</source>
        <translation>Channel 4 interference detection status 3</translation>
    </message>
    <message>
        <source>通道5干扰检测状态1</source>
        <translation>Channel 5 interference detection status 1</translation>
    </message>
    <message>
        <source>通道5干扰检测状态2</source>
        <translation>Channel 5 interference detection status 2</translation>
    </message>
    <message>
        <source>通道5干扰检测状态3</source>
        <translation>Channel 5 interference detection status 3</translation>
    </message>
    <message>
        <source>通道6干扰检测状态1</source>
        <translation>Channel 6 interference detection status 1</translation>
    </message>
    <message>
        <source>通道6干扰检测状态2</source>
        <translation>Channel 6 interference detection status 2</translation>
    </message>
    <message>
        <source>通道6干扰检测状态3</source>
        <translation>Channel 6 interference detection status 3</translation>
    </message>
</context>
</TS>
