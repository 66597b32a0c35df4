<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>MsgBaseWidget</name>
    <message>
        <source>参数</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>值</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>描述</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>无解</source>
        <translation>No solution</translation>
    </message>
    <message>
        <source>位置由 FIX POSITION 命令指定</source>
        <translation>Position fixed by the FIX POSITION command</translation>
    </message>
    <message>
        <source>暂不支持</source>
        <translation>Not supported currently</translation>
    </message>
    <message>
        <source>速度由即时多普勒信息导出</source>
        <translation>Velocity computed using instantaneous Doppler</translation>
    </message>
    <message>
        <source>单点定位</source>
        <translation>Single point positioning</translation>
    </message>
    <message>
        <source>伪距差分解</source>
        <translation>Pseudorange differential solution</translation>
    </message>
    <message>
        <source>SBAS 定位</source>
        <translation>SBAS positioning</translation>
    </message>
    <message>
        <source>L1 浮点解</source>
        <translation>L1 float solution</translation>
    </message>
    <message>
        <source>消电离层浮点解</source>
        <translation>Ionosphere-free float solution</translation>
    </message>
    <message>
        <source>窄巷浮点解</source>
        <translation>Narrow-lane float solution</translation>
    </message>
    <message>
        <source>L1 固定解</source>
        <translation>L1 fixed solution</translation>
    </message>
    <message>
        <source>宽巷固定解</source>
        <translation>Wide-lane fixed solution</translation>
    </message>
    <message>
        <source>窄巷固定解</source>
        <translation>Narrow-lane fixed solution</translation>
    </message>
    <message>
        <source>惯导与单点定位组合解</source>
        <translation>Integrated solution of INS and single point positioning</translation>
    </message>
    <message>
        <source>惯导与伪距差分定位组合解</source>
        <translation>Integrated solution of INS and pseudorange differential positioning</translation>
    </message>
    <message>
        <source>惯导与载波相位差分浮点解组合解</source>
        <translation>Integrated solution of INS and RTK float</translation>
    </message>
    <message>
        <source>惯导与载波相位差分固定解组合解</source>
        <translation>Integrated solution of INS and RTK fix</translation>
    </message>
    <message>
        <source>纯惯导定位解</source>
        <translation>Inertial navigation solution</translation>
    </message>
    <message>
        <source>已解出</source>
        <translation>Solution computed</translation>
    </message>
    <message>
        <source>观测数据不足</source>
        <translation>Insufficient observation</translation>
    </message>
    <message>
        <source>无法收敛</source>
        <translation>No convergence, invalid solution</translation>
    </message>
    <message>
        <source>协方差矩阵的迹超过最大值</source>
        <translation>Covariance matrix trace exceeds maximum</translation>
    </message>
</context>
</TS>
