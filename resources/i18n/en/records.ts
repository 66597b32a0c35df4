<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>BestvelTable</name>
    <message>
        <source>解的状态</source>
        <translation>Solution Status</translation>
    </message>
    <message>
        <source>速度类型</source>
        <translation>Velocity type</translation>
    </message>
    <message>
        <source>根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。</source>
        <translation>A measure of latency in the velocity time tag,in seconds.Subtracting latency from epoch time gives accurate velocity.</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>对地水平速度</source>
        <translation>Horizontal speed over ground</translation>
    </message>
    <message>
        <source>相对于真北的实际对地运动方向</source>
        <translation>Actual direction of motion over ground(track over ground) with respect to True North</translation>
    </message>
    <message>
        <source>保留位</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>age</source>
        <translation>age</translation>
    </message>
</context>
<context>
    <name>PsrvelTable</name>
    <message>
        <source>解的状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>速度类型</source>
        <translation>Velocity type</translation>
    </message>
    <message>
        <source>根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。</source>
        <translation>A measure of latency in the velocity time tag,in seconds.Subtracting latency from epoch time gives accurate velocity</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>对地水平速度</source>
        <translation>Horizontal-speed over ground</translation>
    </message>
    <message>
        <source>相对于真北的实际对地运动方向</source>
        <translation>Actual direction of motion over ground with respect to True North</translation>
    </message>
    <message>
        <source>垂直速度，m/s，正值表示高度增加（向上），负值表示高度下降（向下）</source>
        <translation>Vertical speed m/s,positive indicates increasing altitude(up) and negative indicates decreasing altitude(down)</translation>
    </message>
    <message>
        <source>保留位</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>age</source>
        <translation>age</translation>
    </message>
</context>
<context>
    <name>TdifvelTable</name>
    <message>
        <source>解的状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>速度类型</source>
        <translation>Velocity type</translation>
    </message>
    <message>
        <source>根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。</source>
        <translation>A measure of latency in the velocity time tag,in seconds.Subtracting latency from epoch time gives accurate velocity</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>对地水平速度</source>
        <translation>Horizontal speed over ground</translation>
    </message>
    <message>
        <source>相对于真北的实际对地运动方向</source>
        <translation>Actual direction of motion over ground with respect to True North,in degrees</translation>
    </message>
    <message>
        <source>垂直速度，m/s，正值表示高度增加（向上），负值表示高度下降（向下）</source>
        <translation>Vertical speed m/s,positive indicates increasing altitude(up) and negative indicates decreasing altitude(down)</translation>
    </message>
    <message>
        <source>保留位</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>age</source>
        <translation>age</translation>
    </message>
</context>
<context>
    <name>BestxyzTable</name>
    <message>
        <source>解状态</source>
        <translation>Solution Status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>X 轴坐标</source>
        <translation>X-coordinate of position</translation>
    </message>
    <message>
        <source>Y 轴坐标</source>
        <translation>Y-coordinate of position</translation>
    </message>
    <message>
        <source>Z 轴坐标</source>
        <translation>Z-coordinate of position</translation>
    </message>
    <message>
        <source>X 轴坐标标准差</source>
        <translation>Standard deviation of P-X</translation>
    </message>
    <message>
        <source>Y 轴坐标标准差</source>
        <translation>Standard deviation of P-Y</translation>
    </message>
    <message>
        <source>Z 轴坐标标准差</source>
        <translation>Standard deviation of P-Z</translation>
    </message>
    <message>
        <source>解的状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>速度类型</source>
        <translation>Velocity type</translation>
    </message>
    <message>
        <source>X 轴速度</source>
        <translation>Velocity along X-axis</translation>
    </message>
    <message>
        <source>Y 轴速度</source>
        <translation>Velocity along Y-axis</translation>
    </message>
    <message>
        <source>Z 轴速度</source>
        <translation>Velocity along Z-axis</translation>
    </message>
    <message>
        <source>X 轴速度标准差</source>
        <translation>Standard deviation of V-X</translation>
    </message>
    <message>
        <source>Y 轴速度标准差</source>
        <translation>Standard deviation of V-Y</translation>
    </message>
    <message>
        <source>Z 轴速度标准差</source>
        <translation>Standard deviation of V-Z</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
    </message>
    <message>
        <source>根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。</source>
        <translation>A measure of latency in the velocity time tag,in seconds.Subtracting latency from epoch time gives accurate velocity.</translation>
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
        <source>在解中使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
    </message>
    <message>
        <source>L1/G1/B1 信号参与解算的卫星数</source>
        <translation>Number of satellites with L1/G1/B1 signals used in solution</translation>
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
        <source>GPS, GLONASS 和 BDS 使用的信号掩码</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
</context>
<context>
    <name>BestnavTable</name>
    <message>
        <source>经度</source>
        <translation>Longitude,degrees</translation>
    </message>
    <message>
        <source>纬度</source>
        <translation>Latitude,degrees</translation>
    </message>
    <message>
        <source>海拔高</source>
        <translation>Altitude</translation>
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
        <source>在解中使用的卫星数</source>
        <translation>Number of satellites used in solution</translation>
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
        <source>解状态</source>
        <translation>Solution Status</translation>
    </message>
    <message>
        <source>速度类型</source>
        <translation>Velocity type</translation>
    </message>
    <message>
        <source>延迟值</source>
        <translation>A measure of latency in the velocity time tag,in seconds.Subtracting latency from epoch time gives accurate velocity.</translation>
    </message>
    <message>
        <source>对地水平速度</source>
        <translation>Horizontal speed over ground</translation>
    </message>
    <message>
        <source>运动方向(真北)</source>
        <translation>Actual direction of motion over ground(track over ground) with respect to True North</translation>
    </message>
    <message>
        <source>垂直速度 </source>
        <translation>Vertical speed,m/s</translation>
    </message>
    <message>
        <source>高程速度标准差</source>
        <translation>Standard deviation of elevation and velocity</translation>
    </message>
    <message>
        <source>水平速度标准差</source>
        <translation>Standard deviation of horizontal speed</translation>
    </message>
    <message>
        <source>age</source>
        <translation>age</translation>
    </message>
</context>
<context>
    <name>HeadingTable</name>
    <message>
        <source>解状态</source>
        <translation>Solution Status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>基线长</source>
        <translation>Baseline length</translation>
    </message>
    <message>
        <source>航向</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>俯仰</source>
        <translation>Pitch</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>航向标准偏差</source>
        <translation>Standard deviation of heading</translation>
    </message>
    <message>
        <source>俯仰标准偏差</source>
        <translation>Standard deviation of pitch</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
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
        <source>截止高度角以上的卫星数</source>
        <translation>Number of satellites above the elevation mask angle</translation>
    </message>
    <message>
        <source>截止高度角以上有 L2 观测的卫星数</source>
        <translation>Number of satellites above the elevation mask angle with L2 signal</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
    <message>
        <source>Galileo使用的信号掩码。</source>
        <translation>Galileo signal mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码 </source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>length</source>
        <translation>length</translation>
    </message>
</context>
<context>
    <name>HeadingTable2</name>
    <message>
        <source>解状态</source>
        <translation>Solution status</translation>
    </message>
    <message>
        <source>位置类型</source>
        <translation>Position type</translation>
    </message>
    <message>
        <source>基线长</source>
        <translation>Baseline length</translation>
    </message>
    <message>
        <source>航向</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>俯仰</source>
        <translation>Pitch</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>航向标准偏差</source>
        <translation>Standard deviation of heading</translation>
    </message>
    <message>
        <source>俯仰标准偏差</source>
        <translation>Standard deviation of pitch</translation>
    </message>
    <message>
        <source>基站 ID</source>
        <translation>Base station ID</translation>
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
        <source>截止高度角以上的卫星数</source>
        <translation>Number of satellites above the elevation mask angle</translation>
    </message>
    <message>
        <source>截止高度角以上有 L2 观测的卫星数</source>
        <translation>Number of satellites above the elevation mask angle with L2 signal</translation>
    </message>
    <message>
        <source>扩展解的状态</source>
        <translation>Extended solution status</translation>
    </message>
    <message>
        <source>Galileo使用的信号掩码。</source>
        <translation>Galileo signal mask</translation>
    </message>
    <message>
        <source>GPS, GLONASS 和 BDS 使用的信号掩码</source>
        <translation>GPS,GLONASS and BDS signal mask</translation>
    </message>
    <message>
        <source>length</source>
        <translation>length</translation>
    </message>
</context>
<context>
    <name>InspvaTable</name>
    <message>
        <source>GNSS 周</source>
        <translation>GNSS Week</translation>
    </message>
    <message>
        <source>周秒</source>
        <translation>Weekly seconds</translation>
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
        <source>椭球高</source>
        <translation>Heignt</translation>
    </message>
    <message>
        <source>北向速度</source>
        <translation>North velocity</translation>
    </message>
    <message>
        <source>东向速度</source>
        <translation>East velocity</translation>
    </message>
    <message>
        <source>天向速度</source>
        <translation>Up velocity</translation>
    </message>
    <message>
        <source>横滚角</source>
        <translation>Roll angle</translation>
    </message>
    <message>
        <source>俯仰角</source>
        <translation>Pitch angle</translation>
    </message>
    <message>
        <source>航向角</source>
        <translation>Heading angle</translation>
    </message>
    <message>
        <source>INS 状态</source>
        <translation>INS status</translation>
    </message>
</context>
<context>
    <name>RawimuxTable</name>
    <message>
        <source>IMU 错误</source>
        <translation>IMU error</translation>
    </message>
    <message>
        <source>IMU 类型</source>
        <translation>IMU type</translation>
    </message>
    <message>
        <source>IMU 类型标志，</source>
        <translation>IMU type mark</translation>
    </message>
    <message>
        <source>GNSS 周</source>
        <translation>GNSS Week</translation>
    </message>
    <message>
        <source>周秒</source>
        <translation>Weekly seconds</translation>
    </message>
    <message>
        <source>IMU状态</source>
        <translation>IMU Status</translation>
    </message>
    <message>
        <source>速度沿 Z 轴变化</source>
        <translation>The speed changes along the Z axis</translation>
    </message>
    <message>
        <source>- (速度沿 Y 轴变化) </source>
        <translation>The speed changes along the Y axis</translation>
    </message>
    <message>
        <source>速度沿X轴变化</source>
        <translation>The speed changes along the X axis</translation>
    </message>
    <message>
        <source>沿 Z 轴右手螺旋的角度变化量</source>
        <translation>Angle change of right-hand spiral along Z axis</translation>
    </message>
    <message>
        <source>- (沿 Y 轴右手螺旋的角度变化量)</source>
        <translation>Angle change of right-hand spiral along Y axis</translation>
    </message>
    <message>
        <source>沿 X 轴右手螺旋的角度变化量。</source>
        <translation>Angle change of right-hand spiral along X axis</translation>
    </message>
</context>
<context>
    <name>AgricTable</name>
    <message>
        <source>GNSS</source>
        <translation>GNSS</translation>
    </message>
    <message>
        <source>length</source>
        <translation>length</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>RTK Status</source>
        <translation>RTK Status</translation>
    </message>
    <message>
        <source>Heading Status</source>
        <translation>Heading Status</translation>
    </message>
    <message>
        <source>Num GPS Sta</source>
        <translation>Num GPS Sta</translation>
    </message>
    <message>
        <source>Num BDS Sta</source>
        <translation>Num BDS Sta</translation>
    </message>
    <message>
        <source>Num GLO Sta</source>
        <translation>Num GLO Sta</translation>
    </message>
    <message>
        <source>Baseline_N</source>
        <translation>Baseline_N</translation>
    </message>
    <message>
        <source>Baseline_E</source>
        <translation>Baseline_E</translation>
    </message>
    <message>
        <source>Baseline_U</source>
        <translation>Baseline_U</translation>
    </message>
    <message>
        <source>Baseline_NStd</source>
        <translation>Baseline_NStd</translation>
    </message>
    <message>
        <source>Baseline_EStd </source>
        <translation>Baseline_EStd </translation>
    </message>
    <message>
        <source>Baseline_UStd</source>
        <translation>Baseline_UStd</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Pitch</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Velocity of East</source>
        <translation>Velocity of East</translation>
    </message>
    <message>
        <source>Velocity of Up</source>
        <translation>Velocity of Up</translation>
    </message>
    <message>
        <source>Xigema_Vx</source>
        <translation>Xigema_Vx</translation>
    </message>
    <message>
        <source>Xigema_Vy</source>
        <translation>Xigema_Vy</translation>
    </message>
    <message>
        <source>Xigema_Vz</source>
        <translation>Xigema_Vz</translation>
    </message>
    <message>
        <source>ECEF_X</source>
        <translation>ECEF_X</translation>
    </message>
    <message>
        <source>ECEF_Y</source>
        <translation>ECEF_Y</translation>
    </message>
    <message>
        <source>ECEF_Z</source>
        <translation>ECEF_Z</translation>
    </message>
    <message>
        <source>Xigema_lat</source>
        <translation>Xigema_lat</translation>
    </message>
    <message>
        <source>Xigema_lon</source>
        <translation>Xigema_lon</translation>
    </message>
    <message>
        <source>Xigema_alt</source>
        <translation>Xigema_alt</translation>
    </message>
    <message>
        <source>BASE_lat</source>
        <translation>BASE_lat</translation>
    </message>
    <message>
        <source>BASE_lon</source>
        <translation>BASE_lon</translation>
    </message>
    <message>
        <source>BASE_alt</source>
        <translation>BASE_alt</translation>
    </message>
    <message>
        <source>SEC_lat</source>
        <translation>SEC_lat</translation>
    </message>
    <message>
        <source>SEC_lon</source>
        <translation>SEC_lon</translation>
    </message>
    <message>
        <source>SEC_alt</source>
        <translation>SEC_alt</translation>
    </message>
    <message>
        <source>GPS_WEEK_SECOND</source>
        <translation>GPS_WEEK_SECOND</translation>
    </message>
    <message>
        <source>Undulation</source>
        <translation>Undulation</translation>
    </message>
    <message>
        <source>Remain_float_3</source>
        <translation>Remain_float_3</translation>
    </message>
    <message>
        <source>Remain_float_4</source>
        <translation>Remain_float_4</translation>
    </message>
    <message>
        <source>Num GAL Sta</source>
        <translation>Num GAL Sta</translation>
    </message>
    <message>
        <source>Remain_char_2</source>
        <translation>Remain_char_2</translation>
    </message>
    <message>
        <source>Remain_char_3</source>
        <translation>Remain_char_3</translation>
    </message>
    <message>
        <source>Remain_char_4</source>
        <translation>Remain_char_4</translation>
    </message>
    <message>
        <source>lat</source>
        <translation>Lat</translation>
    </message>
    <message>
        <source>lon</source>
        <translation>Lon</translation>
    </message>
    <message>
        <source>alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>指令长度</source>
        <translation>Instruction length</translation>
    </message>
    <message>
        <source>UTC 时间-年</source>
        <translation>UTC time-year</translation>
    </message>
    <message>
        <source>UTC 时间-月</source>
        <translation>UTC time-month</translation>
    </message>
    <message>
        <source>UTC 时间-日</source>
        <translation>UTC time-day</translation>
    </message>
    <message>
        <source>UTC 时间-时</source>
        <translation>UTC time-hour</translation>
    </message>
    <message>
        <source>UTC 时间-分</source>
        <translation>UTC time-minute</translation>
    </message>
    <message>
        <source>UTC 时间-秒</source>
        <translation>UTC time-second</translation>
    </message>
    <message>
        <source>流动站定位状态,0：无效解；1：单点定位解；2：伪距差分；4：固定解；5：浮动解；</source>
        <translation>Rover position status:0:Invalid solution;1:Single point solution;2: Pseudorange differential solution;4:Fixed solution;5:Float solution</translation>
    </message>
    <message>
        <source>主从天线 Heading解状态:0：无效解；4：固定解；5：浮动解；</source>
        <translation>Heading solution status of master and slave antennas 0:Invalid solution;4:Fixed solution;5:Float solution</translation>
    </message>
    <message>
        <source>参与解算 GPS 卫星数</source>
        <translation>Number of GPS satellites involved in the solution</translation>
    </message>
    <message>
        <source>参与解算北斗卫星数</source>
        <translation>Number of BeiDou satellites involved in the solution</translation>
    </message>
    <message>
        <source>参与解算 GLONASS卫星数</source>
        <translation>Number of GLO satellites involved in the solution</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，北方向分量</source>
        <translation>Baseline vector from the base station to rover station,northern component</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，东方向分量</source>
        <translation>Baseline vector from the base station to rover station,eastern component</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，天顶方向分量</source>
        <translation>Baseline vector from the base station to rover station,vertical component</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，北方向分量标准差</source>
        <translation>Baseline vector from the base station to rover station,northern component standard deviation</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，东方向分量标准差</source>
        <translation>Baseline vector from the base station to rover</translation>
    </message>
    <message>
        <source>基站到流动站基线向量，天顶方向分量标准差</source>
        <translation>Baseline vector from the base station to rover station,vertial component standard deviation</translation>
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
        <source>速度大小，标量</source>
        <translation>Speed,scalar</translation>
    </message>
    <message>
        <source>北方向速度</source>
        <translation>Velocity of North</translation>
    </message>
    <message>
        <source>东方向速度</source>
        <translation>Velocity of East</translation>
    </message>
    <message>
        <source>天顶方向速度</source>
        <translation>Velocity of Up</translation>
    </message>
    <message>
        <source>北方向速度标准差</source>
        <translation>North velocity standard deviation</translation>
    </message>
    <message>
        <source>东方向速度标准差</source>
        <translation>East velocity standard deviation</translation>
    </message>
    <message>
        <source>天顶方向速度标准差</source>
        <translation>Up velcity standard deviation</translation>
    </message>
    <message>
        <source>流动站纬度：-90~90度</source>
        <translation>Latitude of the rover station: -90~90 degrees</translation>
    </message>
    <message>
        <source>流动站经度：-180~180度</source>
        <translation>Longitude of the rover station: -180~180 degrees</translation>
    </message>
    <message>
        <source>流动站高程</source>
        <translation>Height of the rover station</translation>
    </message>
    <message>
        <source>ECEF 坐标系下的 X</source>
        <translation>X axis of the ECEF coordinate system</translation>
    </message>
    <message>
        <source>ECEF 坐标系下的 Y</source>
        <translation>Y axis of the ECEF coordinate system</translation>
    </message>
    <message>
        <source>ECEF 坐标系下的 Z</source>
        <translation>Z axis of the ECEF coordinate system</translation>
    </message>
    <message>
        <source>纬度标准差</source>
        <translation>Latitude standard deviation</translation>
    </message>
    <message>
        <source>经度标准差</source>
        <translation>Longitude standard deviation</translation>
    </message>
    <message>
        <source>高程标准差</source>
        <translation>Height standard deviation</translation>
    </message>
    <message>
        <source>ECEF_X 标准差</source>
        <translation>Standard deviation of ECEF-X</translation>
    </message>
    <message>
        <source>ECEF_Y 标准差</source>
        <translation>Standard deviation of ECEF-Y</translation>
    </message>
    <message>
        <source>ECEF_Z 标准差</source>
        <translation>Standard deviation of ECEF-Z</translation>
    </message>
    <message>
        <source>基准站纬度：-90~90度</source>
        <translation>Reference station latitude: -90~90 degrees</translation>
    </message>
    <message>
        <source>基准站经度：-180~180 度</source>
        <translation>Reference station longitude: -180~180 degrees</translation>
    </message>
    <message>
        <source>基准站高程</source>
        <translation>Reference station altitude</translation>
    </message>
    <message>
        <source>副天线纬度：-90~90度</source>
        <translation> Latitude of the slave antenna:-90~90 degrees</translation>
    </message>
    <message>
        <source>副天线经度：-180~180 度</source>
        <translation>Longitude if the slave antenna:-180~180 degrees</translation>
    </message>
    <message>
        <source>副天线高程</source>
        <translation>Height of the slave antenna</translation>
    </message>
    <message>
        <source>GPS 周内毫秒</source>
        <translation>Milliseconds of GPS week</translation>
    </message>
    <message>
        <source>差分龄期</source>
        <translation>Differential age</translation>
    </message>
    <message>
        <source>速度的方向</source>
        <translation>Direction of velocity</translation>
    </message>
    <message>
        <source>高程异常值</source>
        <translation>Undulation</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>Galileo 卫星数</source>
        <translation>Number of Galileo satellites</translation>
    </message>
</context>
<context>
    <name>GpsionTable</name>
    <message>
        <source>Alpha 参数常数项</source>
        <translation>Constant term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 1 阶项</source>
        <translation>1st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的2 阶项</source>
        <translation>2st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 3 阶项</source>
        <translation>3st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Beta 参数的常数项</source>
        <translation>Constant term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 1 阶项</source>
        <translation>1st order term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 2 阶项</source>
        <translation>2st order term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 3 阶项</source>
        <translation>3st order term of beta parameter</translation>
    </message>
    <message>
        <source>解出电离层参数的卫星号</source>
        <translation>ID of satellites used to calculate ionosphere parameters</translation>
    </message>
    <message>
        <source>解出电离层参数时的时间对应的GPS 周</source>
        <translation>GPS week when calculating the ionosphere parameters</translation>
    </message>
    <message>
        <source>解除电离层参数时的时间对应的GPS 秒</source>
        <translation>GPS second when calculating the ionosphere parameters,milliseconds</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
</context>
<context>
    <name>BdsionTable</name>
    <message>
        <source>Alpha 参数常数项</source>
        <translation>Constant term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 1 阶项</source>
        <translation>1st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的2 阶项</source>
        <translation>2st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 3 阶项</source>
        <translation>3st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Beta 参数的常数项</source>
        <translation>Constant term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 1 阶项</source>
        <translation>1st order term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 2 阶项</source>
        <translation>2st order term of beta parameter</translation>
    </message>
    <message>
        <source>Beta 参数的 3 阶项</source>
        <translation>3st order term of beta parameter</translation>
    </message>
    <message>
        <source>解出电离层参数的卫星号</source>
        <translation>ID of satellites used to calculate ionosphere parameters</translation>
    </message>
    <message>
        <source>解出电离层参数时的时间对应的GPS 周</source>
        <translation>GPS week when calculating the ionosphere parameters</translation>
    </message>
    <message>
        <source>解除电离层参数时的时间对应的GPS 秒</source>
        <translation>GPS second when calculating the ionosphere parameters,milliseconds</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
</context>
<context>
    <name>Bd3ionTable</name>
    <message>
        <source>电离层延迟改正模型参数1</source>
        <translation>Ionospheric delay correction model parameter 1</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数2</source>
        <translation>Ionospheric delay correction model parameter 2</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数3</source>
        <translation>Ionospheric delay correction model parameter 3</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数4</source>
        <translation>Ionospheric delay correction model parameter 4</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数5</source>
        <translation>Ionospheric delay correction model parameter 5</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数6</source>
        <translation>Ionospheric delay correction model parameter 6</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数7</source>
        <translation>Ionospheric delay correction model parameter 7</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数8</source>
        <translation>Ionospheric delay correction model parameter 8</translation>
    </message>
    <message>
        <source>电离层延迟改正模型参数9</source>
        <translation>Ionospheric delay correction model parameter 9</translation>
    </message>
    <message>
        <source>解出电离层参数时的时间对应的GPS 周</source>
        <translation>GPS week when calculating the ionosphere parameters</translation>
    </message>
</context>
<context>
    <name>Galiontable</name>
    <message>
        <source>Alpha 参数的 1 阶项</source>
        <translation>1st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 2 阶项</source>
        <translation>2st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Alpha 参数的 3 阶项</source>
        <translation>3st order term of alpha parameter</translation>
    </message>
    <message>
        <source>Region 1 的电离层干扰标志</source>
        <translation>Ionospheric disturbance flag for Region 1</translation>
    </message>
    <message>
        <source>Region 2 的电离层干扰标志</source>
        <translation>Ionospheric disturbance flag for Region 2</translation>
    </message>
    <message>
        <source>Region 3 的电离层干扰标志</source>
        <translation>Ionospheric disturbance flag for Region 3</translation>
    </message>
    <message>
        <source>Region 4 的电离层干扰标志</source>
        <translation>Ionospheric disturbance flag for Region 4</translation>
    </message>
    <message>
        <source>Region 5 的电离层干扰标志</source>
        <translation>Ionospheric disturbance flag for Region 5</translation>
    </message>
</context>
<context>
    <name>GpsutcTable</name>
    <message>
        <source>UTC 参考周数</source>
        <translation>UTC reference week number</translation>
    </message>
    <message>
        <source>UTC 参数的参考时间</source>
        <translation>UTC parameters reference time</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 的钟差</source>
        <translation>Clock bias of GPST relative to UTC</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 的钟速</source>
        <translation>Clock rate of GPST relative to UTC</translation>
    </message>
    <message>
        <source>新的闰秒生效的周计数</source>
        <translation>Future week number when a new leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效的周内日计数</source>
        <translation>Future day number in the week when a new leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效前 GPST 相对于UTC 的累积闰秒改正数</source>
        <translation>Existing leap seconds of GPST relative to UTC before the next leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效后 GPST 相对于UTC 的累积闰秒改正数</source>
        <translation>Future leap seconds of GPST relative to UTC after the new leap second is added</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 时间差</source>
        <translation>Time offset of GPST relative to UTC</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
</context>
<context>
    <name>BdsutcTable</name>
    <message>
        <source>UTC 参考周数</source>
        <translation>UTC reference week number</translation>
    </message>
    <message>
        <source>UTC 参数的参考时间</source>
        <translation>UTC parameters reference time</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 的钟差</source>
        <translation>Clock bias of GPST relative to UTC</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 的钟速</source>
        <translation>Clock rate of GPST relative to UTC</translation>
    </message>
    <message>
        <source>新的闰秒生效的周计数</source>
        <translation>Future week number when a new leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效的周内日计数</source>
        <translation>Future day number in the week when a new leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效前 GPST 相对于UTC 的累积闰秒改正数</source>
        <translation>Existing leap seconds of GPST relative to UTC before the next leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效后 GPST 相对于UTC 的累积闰秒改正数</source>
        <translation>Future leap seconds of GPST relative to UTC after the new leap second is added</translation>
    </message>
    <message>
        <source>GPST 相对于 UTC 时间差</source>
        <translation>Time offset of GPST relative to UTC</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>Reserved</translation>
    </message>
</context>
<context>
    <name>GalutcTable</name>
    <message>
        <source>Galileo 时相对于 UTC 的钟差</source>
        <translation>Clock bias of GPST relative to UTC</translation>
    </message>
    <message>
        <source>Galileo 时相对于 UTC 的钟速 D</source>
        <translation>Clock rate of GPST relative to UTC</translation>
    </message>
    <message>
        <source>新的闰秒生效前 Galileo 时相对于UTC 的累积闰秒改正数</source>
        <translation>Existing leap seconds of GPST relative to UTC before the next leap second occurs</translation>
    </message>
    <message>
        <source>UTC 参数的参考时间</source>
        <translation>UTC parameters reference time</translation>
    </message>
    <message>
        <source>UTC 参考周数</source>
        <translation>UTC reference week number</translation>
    </message>
    <message>
        <source>新的闰秒值生效 Galileo 周计数</source>
        <translation>Galileo week number when the new leap second takes effect</translation>
    </message>
    <message>
        <source>新的闰秒生效的周内日计数</source>
        <translation>Future day number in the week when a new leap second occurs</translation>
    </message>
    <message>
        <source>新的闰秒生效后 Galileo 时相对于UTC 的累积闰秒改正数</source>
        <translation>Future leap seconds of Galileo time relative to UTC after the new leap second is added</translation>
    </message>
    <message>
        <source>Galileo时间系统与GPST系统转换参数常数项</source>
        <translation>Constant term of the GPST conversion parameters</translation>
    </message>
    <message>
        <source>Galileo时间系统与GPST系统转换参数的1阶项</source>
        <translation>1st order term of the conversion parameters between Galileo time and GPST</translation>
    </message>
    <message>
        <source>Galileo 时间系统与 GPST 系统转换参考周内秒</source>
        <translation>Reference seconds of week of the conversion between Galileo time and GPST</translation>
    </message>
    <message>
        <source>Galileo 时间系统与 GPST 系统转换参考周计数</source>
        <translation>Reference week number of the conversion between Galileo time and GPST</translation>
    </message>
</context>
<context>
    <name>TimeTable</name>
    <message>
        <source>时钟模型状态</source>
        <translation>Clock model status</translation>
    </message>
    <message>
        <source>相对于 GPS 时的接收机钟差</source>
        <translation>Receiver clock error relative to GPS</translation>
    </message>
    <message>
        <source>接收机钟差的标准差</source>
        <translation>Standard deviation of receiver clock error</translation>
    </message>
    <message>
        <source>GPS 时间到 UTC 时间的偏差</source>
        <translation>Deviation from GPS time to UTC time</translation>
    </message>
    <message>
        <source>UTC 年</source>
        <translation>UTC year</translation>
    </message>
    <message>
        <source>UTC 月</source>
        <translation>UTC month</translation>
    </message>
    <message>
        <source>UTC 天</source>
        <translation>UTC day</translation>
    </message>
    <message>
        <source>UTC 小时</source>
        <translation>UTC hour</translation>
    </message>
    <message>
        <source>UTC 分钟</source>
        <translation>UTC minues</translation>
    </message>
    <message>
        <source>UTC 毫秒</source>
        <translation>UTC millisecond</translation>
    </message>
    <message>
        <source>UTC 状态</source>
        <translation>UTC status</translation>
    </message>
</context>
<context>
    <name>FwinfoTable</name>
    <message>
        <source>接收机或板卡等信息数目</source>
        <translation>Number of receiver or board information</translation>
    </message>
    <message>
        <source>产品类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>接收机型号</source>
        <translation>Receiver model</translation>
    </message>
    <message>
        <source>产品 PN 号和序列号</source>
        <translation>PN and Serial Number</translation>
    </message>
    <message>
        <source>硬件版本</source>
        <translation>Hardware version</translation>
    </message>
    <message>
        <source>固件版本</source>
        <translation>Firmware version</translation>
    </message>
    <message>
        <source>Boot 和 BB 版本</source>
        <translation>Boot and BB version</translation>
    </message>
    <message>
        <source>板卡 ID</source>
        <translation>Efuse ID</translation>
    </message>
    <message>
        <source>固件编译日期</source>
        <translation>compile time</translation>
    </message>
</context>
<context>
    <name>AntennaTable</name>
    <message>
        <source>天线 1 的状态信息</source>
        <translation>Status information of antenna 1</translation>
    </message>
    <message>
        <source>天线 2 的状态信息</source>
        <translation>Status information of antenna 2</translation>
    </message>
    <message>
        <source>天线 3 的状态信息</source>
        <translation>Status information of antenna 3</translation>
    </message>
    <message>
        <source>保留字段</source>
        <translation>Reserved fields</translation>
    </message>
</context>
<context>
    <name>ClockswitchTable</name>
    <message>
        <source>时钟类型 1 = 内钟 0 = 外钟,默认为内钟</source>
        <translation>Clock type 1 = internal clock 0 = external clock, default to internal clock</translation>
    </message>
</context>
</TS>
