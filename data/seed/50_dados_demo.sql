-- Demo recordings: the simulated phone's good-board answer to every listed command, per
-- model, exactly as the console shows it (masked like the masking tool leaves it). These are
-- illustrative, not readings of real boards. Written by vekto-demoseeds;
-- the comparator tests check them against the simulator.
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 896.471 mV
buck1 voltage: 0.000 mV
buck2 voltage: 951.084 mV
buck3 voltage: 1812.631 mV
buck4 voltage: 1206.919 mV
buck5 voltage: 1058.504 mV
buck6 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 0.000 mV FAIL
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1068.117 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x10
  device answered at 0x38
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x36
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 3 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 4 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
Command "nand" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
Command "nandsize" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
Command "nanduid" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 903.058 mV
ibuck0: 350.57 mA
vbuck1: 0.000 mV
vbuck2: 955.736 mV
vbuck5: 1067.296 mV
vldo8: 3018.610 mV
vldo9: 1791.121 mV
inand: 48.67 mA
vbuck3: 1807.194 mV
ibuck3: 94.79 mA
vbuck4: 1191.085 mV
vldo1: 2800.359 mV
vldo2: 3000.710 mV
vldo4: 1813.326 mV
vldo5: 3300.767 mV
vldo10: 2884.754 mV
vldo11: 1787.749 mV
vldo3: 2992.174 mV
vldo6: 3299.598 mV
vbuck6: 0.000 mV
PMU built-in self test
BIST ldo3: 2977.787 mV
BIST ildo3: 1769.17 uA
BIST buck3: 1790.304 mV
BIST ldo6: 3316.780 mV
BIST ildo6: 817.54 uA
BIST buck0: 904.535 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5699.434 mV
chestnut vldo2 : 5710.067 mV
chestnut vldo3 : 5128.312 mV
chestnut ildo1 : 12.58 mA
chestnut ildo2 : 11.81 mA
chestnut ildo3 : 6.43 mA
chestnut vneg : -5672.951 mV
chestnut ineg : 10.86 mA
chestnut vin : 3829.351 mV
chestnut ground : 2.000 mV
chestnut vboost : 6031.920 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5031.101 mV
tigris ibus : 412.21 mA
tigris vbat : 3880.495 mV
tigris ibat : 284.34 mA
tigris vdd : 3783.300 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN5273LL/A
Regn  LL/A
RMd#  A1549
MLB#  xxxxx®
BMac  66:5D:8C:11:95:27
WMac  31:40:11:88:58:66
NvSn  AAA696EDE4003142
Batt  F5D97C15D887056E5
LCM#  C11EDE400314297C15D
CLHS  0x00000001
Sku   0x5D8C1195
Mode  0x00000000
C000  0xbeab3bc98129ce62ffd7d5e8187d36752a9795b07a084e54218b50c1d9dc7a6f 0x2a9795b07a084e54218b50c1d9dc7a6fbeab3bc98129ce62ffd7d5e8187d3675
C001  0xa2d67f630bfb43ef62c87b4a3d1fb5b8bc21081d0d9d2f54241bd62bc93e4dcd 0xbc21081d0d9d2f54241bd62bc93e4dcda2d67f630bfb43ef62c87b4a3d1fb5b8
C002  0x140b93a93eeb87efb2c3be481c9b04a775b67d6ddc6bba03a74ea6ae103488e9 0x75b67d6ddc6bba03a74ea6ae103488e9140b93a93eeb87efb2c3be481c9b04a7
C003  0xa3ffbe4dd5e7ff49a7b192d8ad066b0456bfd4239f521f8891454d7dea325b68 0x56bfd4239f521f8891454d7dea325b68a3ffbe4dd5e7ff49a7b192d8ad066b04
C004  0x921810155a9197e27ec650f13ae8070330589551399c7dce8ec3961c428bb7bc 0x30589551399c7dce8ec3961c428bb7bc921810155a9197e27ec650f13ae80703
C005  0xb427498e7ece80e99a3f240938bc8cd04cebec6d12b67d7e50b47cd985a1c0d9 0x4cebec6d12b67d7e50b47cd985a1c0d9b427498e7ece80e99a3f240938bc8cd0
C006  0x850e4e2a5598f73f98e6ef103d2ea456ae2a8bbb8b2e29498fcc05e19f56fa6d 0xae2a8bbb8b2e29498fcc05e19f56fa6d850e4e2a5598f73f98e6ef103d2ea456
C007  0xd7c178449e86b68c4d4dbac9dfb2383a0529823529bcca92886be6bb85f59bc3 0x0529823529bcca92886be6bb85f59bc3d7c178449e86b68c4d4dbac9dfb2383a
C008  0x82a43352bc6b8336df9b3121120539cfb89bc46181c7a35caf62b87e5885e7a2 0xb89bc46181c7a35caf62b87e5885e7a282a43352bc6b8336df9b3121120539cf
C009  0x0ced9db9ef017d6acf44e97457b817b8319b88074a34c529470a187ed31f3bce 0x319b88074a34c529470a187ed31f3bce0ced9db9ef017d6acf44e97457b817b8
C00A  0x2cea293d792a40923fdcbdad186112524135e7898f31d070e2c90487968fbfc2 0x4135e7898f31d070e2c90487968fbfc22cea293d792a40923fdcbdad18611252
C00B  0x00884e794117c9ec6cf735eed5419af247daa0aa27b3b5b2b6f1d479849a312a 0x47daa0aa27b3b5b2b6f1d479849a312a00884e794117c9ec6cf735eed5419af2
C00C  0x6b66a27652c6b8f019c4efc1182a98bcdba2cf9633128abfbf6290385a742eb7 0xdba2cf9633128abfbf6290385a742eb76b66a27652c6b8f019c4efc1182a98bc
C00D  0x2e3ce7091ad195845ac23827c3ac7f8e4d2a2c7737051d366260cec2364f0077 0x4d2a2c7737051d366260cec2364f00772e3ce7091ad195845ac23827c3ac7f8e
C00E  0x806244d562a4b209dc02fead3f65fe18cf09a3c0629eeebfabb5dbf82343a35a 0xcf09a3c0629eeebfabb5dbf82343a35a806244d562a4b209dc02fead3f65fe18
C00F  0xd45949e1fbf1920cb0476bfdf7e1ece17272fea89251167307ae5dd7219d7a5c 0x7272fea89251167307ae5dd7219d7a5cd45949e1fbf1920cb0476bfdf7e1ece1
C010  0x04d75c50b66d8e11eae58ee378bf660d1d4b1e61b6383a81c79838fcbc47603f 0x1d4b1e61b6383a81c79838fcbc47603f04d75c50b66d8e11eae58ee378bf660d
C011  0x31d3d7d8d834f948f850b4ab1a307b206717b6270faadd0967031a3e3007dec3 0x6717b6270faadd0967031a3e3007dec331d3d7d8d834f948f850b4ab1a307b20
C012  0x617285007fee57c49681555951e7cb02f057acea23a1075833f0793fd9235173 0xf057acea23a1075833f0793fd9235173617285007fee57c49681555951e7cb02
C013  0x1284fb672d8229d0d5140bc7020a95c3d0416aef9194d8e26ced0267c6187941 0xd0416aef9194d8e26ced0267c61879411284fb672d8229d0d5140bc7020a95c3
C014  0xbe0987a55ee96f2af24b5d415785b633014c558a8c80fde3146f9dc0251f1d8d 0x014c558a8c80fde3146f9dc0251f1d8dbe0987a55ee96f2af24b5d415785b633
C015  0x27cf0a1a55128249522a78578f4dda2435b4e15440f6eb76e43cc6b1855bf982 0x35b4e15440f6eb76e43cc6b1855bf98227cf0a1a55128249522a78578f4dda24
C016  0xaa35810f518dde2ffa363fe1d649e798566063e55f1446e58417b12321563fd0 0x566063e55f1446e58417b12321563fd0aa35810f518dde2ffa363fe1d649e798
C017  0xe44300da4922bbb802cd35e09c98964d604ed79e0ae52142f0813f54ad6959b7 0x604ed79e0ae52142f0813f54ad6959b7e44300da4922bbb802cd35e09c98964d
C018  0x1df672d266dcada1a027f0ee68e45338a7c1866a12fda05cd6ad0730fd32e2c0 0xa7c1866a12fda05cd6ad0730fd32e2c01df672d266dcada1a027f0ee68e45338
C019  0x7daf4e1888fd6b20d0843e855e5729decf800cac55ecd5271c6f6f37014426de 0xcf800cac55ecd5271c6f6f37014426de7daf4e1888fd6b20d0843e855e5729de
C01A  0xac5be3a0a4aa8f35aecca0179078202042b5ff44d84bccd18820d846294323f2 0x42b5ff44d84bccd18820d846294323f2ac5be3a0a4aa8f35aecca01790782020
C01B  0x89ed4562cf58e5dab033ed49ed027872ab79683c68636e4b223dbd6d87be4a8c 0xab79683c68636e4b223dbd6d87be4a8c89ed4562cf58e5dab033ed49ed027872
C01C  0xbe055c3bf84238d53c6c1dd16b04e396a1662d4796938dc84b0a7c6b78e084e0 0xa1662d4796938dc84b0a7c6b78e084e0be055c3bf84238d53c6c1dd16b04e396
C01D  0x569bb25d50c074d54a9f05e0d90ba26330a350c304863be938387a9225a9f26a 0x30a350c304863be938387a9225a9f26a569bb25d50c074d54a9f05e0d90ba263
C01E  0x7e142ef5b6c6c39d52567e0e43ed5b088ec8bba9167d26414ae00cc72d397808 0x8ec8bba9167d26414ae00cc72d3978087e142ef5b6c6c39d52567e0e43ed5b08
C01F  0x67738dbdc878a11df2a198e3409791a95153c59981b1f6d0876a2577e9b22104 0x5153c59981b1f6d0876a2577e9b2210467738dbdc878a11df2a198e3409791a9
C020  0xfb7b9a2ae708b5f53df83f3d32c2e91d7222ba01f6ca97c0f273d6616072c915 0x7222ba01f6ca97c0f273d6616072c915fb7b9a2ae708b5f53df83f3d32c2e91d
C021  0x9acf1b62faf20ff46e3d0bc9c3db9ee29e1729fe42e02ce4bca4cd14e8b733dc 0x9e1729fe42e02ce4bca4cd14e8b733dc9acf1b62faf20ff46e3d0bc9c3db9ee2
C022  0xfe64487e3a55466b932b9764fc9351a28e0326ac57e0e204e85380dfa195cd84 0x8e0326ac57e0e204e85380dfa195cd84fe64487e3a55466b932b9764fc9351a2
C023  0xccc4883c999fa6155b31c11e3b8ddc06ef80d3afdecf22060556bcbe80686108 0xef80d3afdecf22060556bcbe80686108ccc4883c999fa6155b31c11e3b8ddc06
C024  0xfe6432c46fc859e55d89d893475a388b0d73eac07e7e8ceb5148f0959bcaabaa 0x0d73eac07e7e8ceb5148f0959bcaabaafe6432c46fc859e55d89d893475a388b
C025  0x5779f663252a57dc5e9801cc3f8d2ab8b531154ccba63fb610218e9037e53674 0xb531154ccba63fb610218e9037e536745779f663252a57dc5e9801cc3f8d2ab8
C026  0xb5b62aa7572381618c8558c64a3b6999acde3b7a4f08ab1de6565994744fa400 0xacde3b7a4f08ab1de6565994744fa400b5b62aa7572381618c8558c64a3b6999
C027  0x69ab2ca37f010a1d8536954e309a220c751dadc004cee4ae0e156e304bc8089c 0x751dadc004cee4ae0e156e304bc8089c69ab2ca37f010a1d8536954e309a220c
C028  0x5ac98ddf5aea504409e034079e632228382086bda605df38a6c18df68db57389 0x382086bda605df38a6c18df68db573895ac98ddf5aea504409e034079e632228
C029  0xb772421c6b3fd000cf0c68c902c9082119f326b453432fddac839f18cd6d215e 0x19f326b453432fddac839f18cd6d215eb772421c6b3fd000cf0c68c902c90821
C02A  0x7f12539ee204be22d8a9d36d57a7844e7e45d4c32b62f58b26b700542c2c3add 0x7e45d4c32b62f58b26b700542c2c3add7f12539ee204be22d8a9d36d57a7844e
C02B  0xb6406960455f341199495d0ce9fff751aa5a2d5b5cdb1fdb491259c48dfd2c12 0xaa5a2d5b5cdb1fdb491259c48dfd2c12b6406960455f341199495d0ce9fff751
C02C  0x9cebe11fb67f425e90f8357820783a85c486ded65686c0ae249fe26e6659b499 0xc486ded65686c0ae249fe26e6659b4999cebe11fb67f425e90f8357820783a85
C02D  0xa73720973e6a0d7b47c16e4c6d34a479cf19c4c00e8ef94ac9287ce700e9dc16 0xcf19c4c00e8ef94ac9287ce700e9dc16a73720973e6a0d7b47c16e4c6d34a479
C02E  0x42643fea19801a86804f389f4c877948087107ceaa386ebc1ccbc579243d14cf 0x087107ceaa386ebc1ccbc579243d14cf42643fea19801a86804f389f4c877948
C02F  0x5f84abea15fec80677d6af0e1c1be4261fede004e87408b14a6687020d260826 0x1fede004e87408b14a6687020d2608265f84abea15fec80677d6af0e1c1be426
C030  0x9e2fec97fdb8f5d1543e6af3ada52ff504ea486b1e496022ddfe453e495042cb 0x04ea486b1e496022ddfe453e495042cb9e2fec97fdb8f5d1543e6af3ada52ff5
C031  0xa873fa1335373fc478003ec159315480437d5411a2679449a9f034d0c0b064f0 0x437d5411a2679449a9f034d0c0b064f0a873fa1335373fc478003ec159315480
C032  0x0cbf73c98983e41fa74fa224a099ada62f62042eecbe1c02bba25ad10d1e70d3 0x2f62042eecbe1c02bba25ad10d1e70d30cbf73c98983e41fa74fa224a099ada6
C033  0x07bf089c9e2d14e2a54028f7985e8082c5fd23ccd354ccbd03ec1509b2923e7a 0xc5fd23ccd354ccbd03ec1509b2923e7a07bf089c9e2d14e2a54028f7985e8082
C034  0x0b38807a0fe92d1bcb035193995f209c38dd8936fd2dcdb190c7cf75c5deb129 0x38dd8936fd2dcdb190c7cf75c5deb1290b38807a0fe92d1bcb035193995f209c
C035  0x31a726e72e531abffcdb6fe96e127504b49c422ba8cb5287a5909f722e30da29 0xb49c422ba8cb5287a5909f722e30da2931a726e72e531abffcdb6fe96e127504
C036  0xef13abd07b4abd87aeb1ac156b5c9c8c7be5e21bb226378a6f8ca52d4549a808 0x7be5e21bb226378a6f8ca52d4549a808ef13abd07b4abd87aeb1ac156b5c9c8c
C037  0x730a002cb996ea5d908e6f73dbd8dce89242812d7a873eeb6fd59b19088dff58 0x9242812d7a873eeb6fd59b19088dff58730a002cb996ea5d908e6f73dbd8dce8
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1549
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 906.696 mV
buck1 voltage: 0.000 mV
buck2 voltage: 945.012 mV
buck3 voltage: 1807.064 mV
buck4 voltage: 1203.605 mV
buck5 voltage: 1066.979 mV
buck6 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 0.000 mV FAIL
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1063.063 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x10
  device answered at 0x38
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x36
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 3 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 4 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
Command "nand" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
Command "nandsize" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
Command "nanduid" not found
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 905.773 mV
ibuck0: 351.12 mA
vbuck1: 0.000 mV
vbuck2: 944.656 mV
vbuck5: 1064.944 mV
vldo8: 2987.948 mV
vldo9: 1799.111 mV
inand: 48.57 mA
vbuck3: 1813.441 mV
ibuck3: 94.85 mA
vbuck4: 1202.159 mV
vldo1: 2797.298 mV
vldo2: 2999.949 mV
vldo4: 1807.672 mV
vldo5: 3318.202 mV
vldo10: 2894.259 mV
vldo11: 1807.114 mV
vldo3: 3013.809 mV
vldo6: 3285.523 mV
vbuck6: 0.000 mV
PMU built-in self test
BIST ldo3: 2998.055 mV
BIST ildo3: 1768.76 uA
BIST buck3: 1797.605 mV
BIST ldo6: 3299.137 mV
BIST ildo6: 819.59 uA
BIST buck0: 900.452 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5662.783 mV
chestnut vldo2 : 5704.633 mV
chestnut vldo3 : 5098.182 mV
chestnut ildo1 : 12.43 mA
chestnut ildo2 : 11.72 mA
chestnut ildo3 : 6.44 mA
chestnut vneg : -5725.160 mV
chestnut ineg : 10.86 mA
chestnut vin : 3834.636 mV
chestnut ground : 2.000 mV
chestnut vboost : 5968.219 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 4977.074 mV
tigris ibus : 412.33 mA
tigris vbat : 3846.849 mV
tigris ibat : 285.35 mA
tigris vdd : 3784.256 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN57F0LL/A
Regn  LL/A
RMd#  A1522
MLB#  xxxxx®
BMac  A0:3B:A8:77:75:7F
WMac  0C:AF:BC:B0:3E:5B
NvSn  01C62E0BFFC5778D
Batt  F5DDD6B20F7CFE239
LCM#  C110BFFC5778DDD6B20
CLHS  0x00000001
Sku   0x3BA87775
Mode  0x00000000
C000  0xba7b2f6d71abd344953b83bb5b833f8b69122ad7e027c02e05fe90ca54e3c898 0x69122ad7e027c02e05fe90ca54e3c898ba7b2f6d71abd344953b83bb5b833f8b
C001  0x5a1ffff1d203a44ea2938bc3abb06387c077233da989ee142d43ddf60d1a649c 0xc077233da989ee142d43ddf60d1a649c5a1ffff1d203a44ea2938bc3abb06387
C002  0xc989df0b786980cc08347381e64fd02c57c40760b3a0e390fce259d7907ba23b 0x57c40760b3a0e390fce259d7907ba23bc989df0b786980cc08347381e64fd02c
C003  0xdfcd15bb62c17ee887e3f3e68fc0c22944f409bbe6764d76d8b70e54360289e6 0x44f409bbe6764d76d8b70e54360289e6dfcd15bb62c17ee887e3f3e68fc0c229
C004  0x64fd072f6a195dea1300e6a7dc73df721ba4c6f323664d09a87cdd0d1c15d9e5 0x1ba4c6f323664d09a87cdd0d1c15d9e564fd072f6a195dea1300e6a7dc73df72
C005  0xbb57a2641922c4ed884571ad11d0141864455d288346278d08ad88cbc028ce4f 0x64455d288346278d08ad88cbc028ce4fbb57a2641922c4ed884571ad11d01418
C006  0x85e4c45be6bc2cd2d3cd2bfde609ce6f3a61fb5a6c4f073fc3f102e84c571653 0x3a61fb5a6c4f073fc3f102e84c57165385e4c45be6bc2cd2d3cd2bfde609ce6f
C007  0xaaf8e5a6039dc8c920858756739b28b02604c5047817848474447ccf1c44d22f 0x2604c5047817848474447ccf1c44d22faaf8e5a6039dc8c920858756739b28b0
C008  0x8d03414233629ae06f911cf6b1a2ef682482e092c0e2dbcb5728b3053a266c72 0x2482e092c0e2dbcb5728b3053a266c728d03414233629ae06f911cf6b1a2ef68
C009  0x30eaa6a53a0716611e9e3be77e249c3a020dbffd9a9adc1e43c7125e9a534271 0x020dbffd9a9adc1e43c7125e9a53427130eaa6a53a0716611e9e3be77e249c3a
C00A  0xadaffe0fe98e9e16431725e5f48b1f6cc30651d7fabb0b25a33ab47acce584c5 0xc30651d7fabb0b25a33ab47acce584c5adaffe0fe98e9e16431725e5f48b1f6c
C00B  0xf2a5738f769bed391e07b8a63abf5504c5c639e055b38662f1ec4eabc11b4112 0xc5c639e055b38662f1ec4eabc11b4112f2a5738f769bed391e07b8a63abf5504
C00C  0x9c86b4b7aee85122c2ef1b09034839cc38b6db767432958eb2bfad6b72cb6a9f 0x38b6db767432958eb2bfad6b72cb6a9f9c86b4b7aee85122c2ef1b09034839cc
C00D  0xd9c8de991655b4f6683597613f241fd8165bd6c8dd08f53e04bed521a0d15679 0x165bd6c8dd08f53e04bed521a0d15679d9c8de991655b4f6683597613f241fd8
C00E  0xb22ae40c76935cebd3b7bf67f4d7cf5c9181dedccfcd1b942312dd7962302c28 0x9181dedccfcd1b942312dd7962302c28b22ae40c76935cebd3b7bf67f4d7cf5c
C00F  0x6a02b837479d1f5cd912296b31333653d6612701651560e5e1162e094efb8975 0xd6612701651560e5e1162e094efb89756a02b837479d1f5cd912296b31333653
C010  0xfa802b563bc027e1ed39ffd3c29e5ccdb3ec7df64fbcd7684b87192fc72b7c9d 0xb3ec7df64fbcd7684b87192fc72b7c9dfa802b563bc027e1ed39ffd3c29e5ccd
C011  0x8586865ab4e33cfdce0a9157543c94d74a52438740c092573a31b9fe96567342 0x4a52438740c092573a31b9fe965673428586865ab4e33cfdce0a9157543c94d7
C012  0x30849381b277beefb509ffc085ded348b28d088c424ffc1d21f674245cd344e5 0xb28d088c424ffc1d21f674245cd344e530849381b277beefb509ffc085ded348
C013  0xf35c23216bd32c2f6169f4d62269c8eab544da559eb28a6f3e2b7d846d4e39c9 0xb544da559eb28a6f3e2b7d846d4e39c9f35c23216bd32c2f6169f4d62269c8ea
C014  0xa70c54929d9a0a81a640b88022205c2d4fd619d5576aef79b548f6d93e368b33 0x4fd619d5576aef79b548f6d93e368b33a70c54929d9a0a81a640b88022205c2d
C015  0x0de624857f445d67e82dba19493c18ebdb3c3cc7b2efeb28e54f8137e854fad2 0xdb3c3cc7b2efeb28e54f8137e854fad20de624857f445d67e82dba19493c18eb
C016  0x569e6d483c34834d9cf89bf7517a92e384d65b38d41b7748b5c357cceb7b9840 0x84d65b38d41b7748b5c357cceb7b9840569e6d483c34834d9cf89bf7517a92e3
C017  0xe8e5c24fc651923290c0cf29e977d0df5b9ae03e51abead933a5e25ce674344a 0x5b9ae03e51abead933a5e25ce674344ae8e5c24fc651923290c0cf29e977d0df
C018  0xac22fa8d57f205efd83be4fcffaef8ea90b8aec22a4dba34558de6c72abf10af 0x90b8aec22a4dba34558de6c72abf10afac22fa8d57f205efd83be4fcffaef8ea
C019  0xc1a1e73052b283fca3a0f733aec7f5f052c6df605cfaad82e8d9138d4170cc18 0x52c6df605cfaad82e8d9138d4170cc18c1a1e73052b283fca3a0f733aec7f5f0
C01A  0x028e6f4e042824f0d8bb035ead638a76b084595df98bfde56232305094703041 0xb084595df98bfde56232305094703041028e6f4e042824f0d8bb035ead638a76
C01B  0xd978b403e73e1c9b8c94d66b61946364bba7ec223ad885751fcc1f71128b0048 0xbba7ec223ad885751fcc1f71128b0048d978b403e73e1c9b8c94d66b61946364
C01C  0x498ea0235f14d48d6818b4a3b7540aadb6f758d309e7d86ddcc2dd27fc70789d 0xb6f758d309e7d86ddcc2dd27fc70789d498ea0235f14d48d6818b4a3b7540aad
C01D  0x813f4c328eaff3888a66623a9f25c9fe96bb9dea562bd1830d24f467d9b42f07 0x96bb9dea562bd1830d24f467d9b42f07813f4c328eaff3888a66623a9f25c9fe
C01E  0x968a6f27066f3afe6bb2d5304dc221ab7b909d4114d4dc8e21d43a7af3f3f03f 0x7b909d4114d4dc8e21d43a7af3f3f03f968a6f27066f3afe6bb2d5304dc221ab
C01F  0x2af73fb30ada9efbe29e45519e4fbdf8d41f334db47b4e8b073cd0a09b4d432d 0xd41f334db47b4e8b073cd0a09b4d432d2af73fb30ada9efbe29e45519e4fbdf8
C020  0xf6dd89738a2308be5f8e7161f584ef4d91cbfab678f66c2e963f4987ec7f9447 0x91cbfab678f66c2e963f4987ec7f9447f6dd89738a2308be5f8e7161f584ef4d
C021  0x4994add1bbf23299543c053794d0ced588d8bfab7430f1885e008ae9b4ad9022 0x88d8bfab7430f1885e008ae9b4ad90224994add1bbf23299543c053794d0ced5
C022  0x2dbe356c62165fba5f75373fe0fffc3acb2a065906033be8ceb06db41ccf1d51 0xcb2a065906033be8ceb06db41ccf1d512dbe356c62165fba5f75373fe0fffc3a
C023  0xa66be1186040cdc2decfd3e02bb64abcc9f6081e8dd7d6753b541774514c977c 0xc9f6081e8dd7d6753b541774514c977ca66be1186040cdc2decfd3e02bb64abc
C024  0x354eb80f747d04e4f9f4d6a57428be5ab5d8950207c4dfca62b679189fa68f9a 0xb5d8950207c4dfca62b679189fa68f9a354eb80f747d04e4f9f4d6a57428be5a
C025  0xdb2fa9e4647ba70aec0e5bfc156002d0773c7ee8f6518bd2a65a225cf288f4cf 0x773c7ee8f6518bd2a65a225cf288f4cfdb2fa9e4647ba70aec0e5bfc156002d0
C026  0x513818f479cd457495c824792288c72743b07120494d756cefebab1c8d8214a6 0x43b07120494d756cefebab1c8d8214a6513818f479cd457495c824792288c727
C027  0x8319672d0625b5b2c44fb731e5b0109465c8b0c1075ab5349dc914fd478b483d 0x65c8b0c1075ab5349dc914fd478b483d8319672d0625b5b2c44fb731e5b01094
C028  0x9ca80c96c8aacba9b3a51548210fcee86adf693e2709ff34aaf92b71f804b057 0x6adf693e2709ff34aaf92b71f804b0579ca80c96c8aacba9b3a51548210fcee8
C029  0x45b8c72e5d9b0564f0e13804a1f628b8c4d6ecb567b1ec30be5dda4812012ec1 0xc4d6ecb567b1ec30be5dda4812012ec145b8c72e5d9b0564f0e13804a1f628b8
C02A  0xbd339e131ea943311f83f49b596ab891ab959ade52a7a1cf2a86acbced7f3803 0xab959ade52a7a1cf2a86acbced7f3803bd339e131ea943311f83f49b596ab891
C02B  0xb8e554434a0e2b1ab776d81a97a9dc5c10e53d036d7e5364652de66714536e0a 0x10e53d036d7e5364652de66714536e0ab8e554434a0e2b1ab776d81a97a9dc5c
C02C  0x1d72f299f7f5866cf59df5cb8921daed6505b6aacfebb153a69d105efe42e1ee 0x6505b6aacfebb153a69d105efe42e1ee1d72f299f7f5866cf59df5cb8921daed
C02D  0xc4dc5a0c0e6457dbb6a8b78a38f97752889cda9eb3d726d51d3fae4ec67924c6 0x889cda9eb3d726d51d3fae4ec67924c6c4dc5a0c0e6457dbb6a8b78a38f97752
C02E  0xb5abbfaf42c61c33e562d58aed6781aa7d86e5517db5dccaf6544da7e7125fc2 0x7d86e5517db5dccaf6544da7e7125fc2b5abbfaf42c61c33e562d58aed6781aa
C02F  0x2455765e3129064e3a247ab314985b4531215f7a7990a8644cbdddecf8914def 0x31215f7a7990a8644cbdddecf8914def2455765e3129064e3a247ab314985b45
C030  0xa4f2d7fa2f94ee3468d6bd8cedd130b3c7086f15ba165202abfe19d10bf63e50 0xc7086f15ba165202abfe19d10bf63e50a4f2d7fa2f94ee3468d6bd8cedd130b3
C031  0x9ca3f4d69346a7db5a10065c039b7b85273e79351b653b45ef7a6cc15485d192 0x273e79351b653b45ef7a6cc15485d1929ca3f4d69346a7db5a10065c039b7b85
C032  0x8a6fed8b6e5760323c06061647fd25823b771f21b00959cf8a36285590ec94dd 0x3b771f21b00959cf8a36285590ec94dd8a6fed8b6e5760323c06061647fd2582
C033  0x8ca16921d32a089826b5704dde6ab30510cd9905dc2c70ba0f60c1a8a3823888 0x10cd9905dc2c70ba0f60c1a8a38238888ca16921d32a089826b5704dde6ab305
C034  0xf20668f13632d276390252e0d3e95ce52b0d026292b9bb1eee1d5f9405cf04ad 0x2b0d026292b9bb1eee1d5f9405cf04adf20668f13632d276390252e0d3e95ce5
C035  0x141f0cff09008a5e1d8ee5858454030eb58edd6bfc75bc9bf42ae3fb01b1d764 0xb58edd6bfc75bc9bf42ae3fb01b1d764141f0cff09008a5e1d8ee5858454030e
C036  0xebe0868fefd2177e4db2fd1fc5a6245e2bc0c167ec142235d0f775716bf9db5a 0x2bc0c167ec142235d0f775716bf9db5aebe0868fefd2177e4db2fd1fc5a6245e
C037  0x296bd1ccac116d2528e70077aa3d6a10520804edac3a68abc1d1830ea89ee58b 0x520804edac3a68abc1d1830ea89ee58b296bd1ccac116d2528e70077aa3d6a10
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1522
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 899.471 mV
buck1 voltage: 0.000 mV
buck2 voltage: 946.996 mV
buck3 voltage: 1805.832 mV
buck4 voltage: 1197.854 mV
buck5 voltage: 1065.492 mV
buck6 voltage: 0.000 mV
buck7 voltage: 851.932 mV
buck8 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 904.847 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1052.257 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x10
  device answered at 0x38
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x36
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 3 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 4 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Toshiba
  capacity: 68 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01633
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x4000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 901.256 mV
ibuck0: 355.14 mA
vbuck1: 0.000 mV
vbuck2: 951.234 mV
vbuck5: 1065.453 mV
vldo8: 2994.628 mV
vldo9: 1792.276 mV
inand: 48.45 mA
vbuck3: 1797.620 mV
ibuck3: 95.61 mA
vbuck4: 1205.945 mV
vldo1: 2784.317 mV
vldo2: 3004.409 mV
vldo4: 1785.827 mV
vldo5: 3275.941 mV
vldo10: 2901.049 mV
vldo11: 1797.347 mV
vldo3: 2991.823 mV
vldo6: 3283.024 mV
vbuck6: 0.000 mV
vbuck7: 854.569 mV
vbuck8: 0.000 mV
PMU built-in self test
BIST ldo3: 3018.880 mV
BIST ildo3: 1749.64 uA
BIST buck3: 1808.832 mV
BIST ldo6: 3306.279 mV
BIST ildo6: 826.90 uA
BIST buck0: 905.119 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5673.633 mV
chestnut vldo2 : 5654.831 mV
chestnut vldo3 : 5138.035 mV
chestnut ildo1 : 12.45 mA
chestnut ildo2 : 11.72 mA
chestnut ildo3 : 6.35 mA
chestnut vneg : -5734.522 mV
chestnut ineg : 10.98 mA
chestnut vin : 3878.708 mV
chestnut ground : 2.000 mV
chestnut vboost : 5957.591 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5010.903 mV
tigris ibus : 411.66 mA
tigris vbat : 3840.481 mV
tigris ibat : 285.46 mA
tigris vdd : 3778.354 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN6C40LL/A
Regn  LL/A
RMd#  A1633
MLB#  xxxxx®
BMac  BB:28:70:AE:66:C4
WMac  05:1C:A6:AB:AC:A6
NvSn  AC1F03EAEC7D1B40
Batt  F5D8EB61596E2ACD9
LCM#  C11EAEC7D1B408EB615
CLHS  0x00000001
Sku   0x2870AE66
Mode  0x00000000
C000  0x9eb61088bd18a29fe707bbb49e53467ddd8e5f257610ef4d568ec74ff2ac8778 0xdd8e5f257610ef4d568ec74ff2ac87789eb61088bd18a29fe707bbb49e53467d
C001  0x43de7f1e0e1a1a695f0bc6f71ba7f1a7a71f763f14f315bb769165867fe0e36c 0xa71f763f14f315bb769165867fe0e36c43de7f1e0e1a1a695f0bc6f71ba7f1a7
C002  0x165da83d76ecaec40f3db6fcc46e131cb16467846d0b01c51075d9193f0950dc 0xb16467846d0b01c51075d9193f0950dc165da83d76ecaec40f3db6fcc46e131c
C003  0x76dae9905e4689811dee54ac0ce014760e55cdf8947e9f8fc21f10492a664d54 0x0e55cdf8947e9f8fc21f10492a664d5476dae9905e4689811dee54ac0ce01476
C004  0x8406343b2a71f20b7f166f6c27763bd12c7033b64897fc70c2962d41f461670f 0x2c7033b64897fc70c2962d41f461670f8406343b2a71f20b7f166f6c27763bd1
C005  0x2e8cb8a69f5fa5d20c8e7fb59e1f3c8e8bc112e65f0c4a6e469b34df1a2d817c 0x8bc112e65f0c4a6e469b34df1a2d817c2e8cb8a69f5fa5d20c8e7fb59e1f3c8e
C006  0xc9d7f1690af067f50a95034d7140c8c018d595a4de9a8efdb602d9e29563ab61 0x18d595a4de9a8efdb602d9e29563ab61c9d7f1690af067f50a95034d7140c8c0
C007  0xbfa07bd44d2b8bcd2fc987ea500e3c9ec2365772a4c6371f3a7921cf96d373bc 0xc2365772a4c6371f3a7921cf96d373bcbfa07bd44d2b8bcd2fc987ea500e3c9e
C008  0xc3ea2959e6b95bcb7e200d1aeec23883c9aed3ccf88b73fc7f78a6a5a105fbcb 0xc9aed3ccf88b73fc7f78a6a5a105fbcbc3ea2959e6b95bcb7e200d1aeec23883
C009  0x6510ffe6bae69415086de6c2680cde55cb202884b3eb8f72de307a9b47f9ab09 0xcb202884b3eb8f72de307a9b47f9ab096510ffe6bae69415086de6c2680cde55
C00A  0xc96d09b73969ee788163b6daf24eac5dae574e877a78dba739d82921eb45cf90 0xae574e877a78dba739d82921eb45cf90c96d09b73969ee788163b6daf24eac5d
C00B  0xcad84045ddac8863664599d17929f49d432d03a41e4725fc82b5fe3a0d212b7f 0x432d03a41e4725fc82b5fe3a0d212b7fcad84045ddac8863664599d17929f49d
C00C  0x20aeda3f48aa9d226a7d926a91c07f367102507ca5cf12649a4ffc602ab28ffd 0x7102507ca5cf12649a4ffc602ab28ffd20aeda3f48aa9d226a7d926a91c07f36
C00D  0xdb40800c6e629e109134b5acbe32ec8c532dfb5f4cb9154878677bf92ff179ea 0x532dfb5f4cb9154878677bf92ff179eadb40800c6e629e109134b5acbe32ec8c
C00E  0xe1cfc64f1e1fea3b3ad97c03196a670e14327a261ee0a8e5e175987f96e1b130 0x14327a261ee0a8e5e175987f96e1b130e1cfc64f1e1fea3b3ad97c03196a670e
C00F  0xc55a78b6d4ab1933edb43c7253f65b5f36e864f2834b9bf97f67e8e19befa8d1 0x36e864f2834b9bf97f67e8e19befa8d1c55a78b6d4ab1933edb43c7253f65b5f
C010  0xd03fbd95516d31b9416ee050cc4471da1e44fc4baf34cc064ecbd50fbf8fb9d1 0x1e44fc4baf34cc064ecbd50fbf8fb9d1d03fbd95516d31b9416ee050cc4471da
C011  0xe2d776a931065251c477beae7981b281e0a0469cd4a7786a59a0eca471f9d965 0xe0a0469cd4a7786a59a0eca471f9d965e2d776a931065251c477beae7981b281
C012  0x8c3e812afda5dc17f39556a341a76c9e7ba7236269180068d08bdf8cbb8cc9d2 0x7ba7236269180068d08bdf8cbb8cc9d28c3e812afda5dc17f39556a341a76c9e
C013  0x397c20ede482190a470278d981a202e0da4407152d7f3ac442bc51d064e3e319 0xda4407152d7f3ac442bc51d064e3e319397c20ede482190a470278d981a202e0
C014  0xe2fca4171dc762fe4a3623f672e2b926a1cffa67e8fac7e51c0d58fbeb9079a9 0xa1cffa67e8fac7e51c0d58fbeb9079a9e2fca4171dc762fe4a3623f672e2b926
C015  0x13cec00e6f06c1af5da8f07fc6dd74fff32e28f071ff757f4ee5bfcc4bfaceb1 0xf32e28f071ff757f4ee5bfcc4bfaceb113cec00e6f06c1af5da8f07fc6dd74ff
C016  0x51523cd988d9f399d3955fb60ace20b196a8f7060febb2854940aa53bbd1f930 0x96a8f7060febb2854940aa53bbd1f93051523cd988d9f399d3955fb60ace20b1
C017  0x59cc7da052ec67aea066ff1d0dc82bc28abb83275e631beb9618389445e7d25a 0x8abb83275e631beb9618389445e7d25a59cc7da052ec67aea066ff1d0dc82bc2
C018  0xabda9c70711dd73f3af176e3de9dd3ba3509b6f833d7ded31db6d539860ccb4f 0x3509b6f833d7ded31db6d539860ccb4fabda9c70711dd73f3af176e3de9dd3ba
C019  0x7726af7e5414e4e00d5d184264203d6ec6fce81d093852854c038eeabf110682 0xc6fce81d093852854c038eeabf1106827726af7e5414e4e00d5d184264203d6e
C01A  0xd88cb2872dd3532c9c4c3836af8d82a0f0f07f7945aeb63b83f964dcd1d36591 0xf0f07f7945aeb63b83f964dcd1d36591d88cb2872dd3532c9c4c3836af8d82a0
C01B  0x87d600c88c8a876ac85c15c44cd92b424652377bb9b0349118203891aac18bcc 0x4652377bb9b0349118203891aac18bcc87d600c88c8a876ac85c15c44cd92b42
C01C  0x6a1409dc9f5b6dd6466c6a0acdc5f08e2d8d45436d7cbecefdebd4a211fd47db 0x2d8d45436d7cbecefdebd4a211fd47db6a1409dc9f5b6dd6466c6a0acdc5f08e
C01D  0x7b392f14564c678016dcfd40752eb1aa52146e285b6a21b67742197a5844ad64 0x52146e285b6a21b67742197a5844ad647b392f14564c678016dcfd40752eb1aa
C01E  0x7dbe0ef0c0e70c1ec1bc4793000384401490f666834495a285929587570c1aff 0x1490f666834495a285929587570c1aff7dbe0ef0c0e70c1ec1bc479300038440
C01F  0x3d0fc7cf690c1cdc8db69ffdadad21ff4e1abbf186b6eaa53bd9b26d6bd93d67 0x4e1abbf186b6eaa53bd9b26d6bd93d673d0fc7cf690c1cdc8db69ffdadad21ff
C020  0x93bd4e30af19791e6f2e9e4639a0e31f6a82a5ba8ae93fd3b0de0c0c6aabaa40 0x6a82a5ba8ae93fd3b0de0c0c6aabaa4093bd4e30af19791e6f2e9e4639a0e31f
C021  0xab7c489ffe914d802ae30aa61bdad94274f63b1a22c255c389fef08ecd1b9019 0x74f63b1a22c255c389fef08ecd1b9019ab7c489ffe914d802ae30aa61bdad942
C022  0xd66b93fedfdd8d319098f901bf35b3a426a21d6ec7815efbb6f46918216b2c59 0x26a21d6ec7815efbb6f46918216b2c59d66b93fedfdd8d319098f901bf35b3a4
C023  0x91558910e4fc4bccc71470389f0bf34355464b24e51dbf8646df7c3fddbe2014 0x55464b24e51dbf8646df7c3fddbe201491558910e4fc4bccc71470389f0bf343
C024  0xdb4a115f099088a1da52c4da3ddec8a710e4e3bff68001228b8cdbf21a53df73 0x10e4e3bff68001228b8cdbf21a53df73db4a115f099088a1da52c4da3ddec8a7
C025  0xdeddf3622217191f0c2fe6ccbba6ebc17d01e7694c12690f5f28e28964373c29 0x7d01e7694c12690f5f28e28964373c29deddf3622217191f0c2fe6ccbba6ebc1
C026  0x466c04afcf8178d8d84190c8350714cd7206c362cb5fc458c411f64d38a836d2 0x7206c362cb5fc458c411f64d38a836d2466c04afcf8178d8d84190c8350714cd
C027  0xdc16b7e0d9e2e113d46392e0e13989bb2c47a0c7109fbe27cfe1526c9c5e953e 0x2c47a0c7109fbe27cfe1526c9c5e953edc16b7e0d9e2e113d46392e0e13989bb
C028  0x19c463fb5b7fe60ed3e2c86d46c52cab5364cb37561d0cf52d65e7f5a45bfd73 0x5364cb37561d0cf52d65e7f5a45bfd7319c463fb5b7fe60ed3e2c86d46c52cab
C029  0xb2dcca088af4196a116917664641c87b4b59927c10303709a0d9f60f69d08f4e 0x4b59927c10303709a0d9f60f69d08f4eb2dcca088af4196a116917664641c87b
C02A  0xa4f71de68f9e4dd43534b2aba41e30ae2dc25e01420194dc13d87bc0eec20707 0x2dc25e01420194dc13d87bc0eec20707a4f71de68f9e4dd43534b2aba41e30ae
C02B  0x26c199ff3965c41cd4a9a189840e37c95e22ed390a0ee1dabbc9f854e5efc741 0x5e22ed390a0ee1dabbc9f854e5efc74126c199ff3965c41cd4a9a189840e37c9
C02C  0x079d4694994a6e5e3e5e62378b2fc50498a260d42618bccc8e921f6b082c7d6e 0x98a260d42618bccc8e921f6b082c7d6e079d4694994a6e5e3e5e62378b2fc504
C02D  0xc3b723560c87bf1b5cf9dffa9be8e2d41041ec0bbf7c1b6ea8bf5c82bae0ab9a 0x1041ec0bbf7c1b6ea8bf5c82bae0ab9ac3b723560c87bf1b5cf9dffa9be8e2d4
C02E  0x7ad9f36244621ee46b73a4030270454d54793930da56079b097cdcdceeff3b3d 0x54793930da56079b097cdcdceeff3b3d7ad9f36244621ee46b73a4030270454d
C02F  0x98fad6a946a956ab25d9b26756efbc62f6dd7ec075abc5f44576a07425bbc5b7 0xf6dd7ec075abc5f44576a07425bbc5b798fad6a946a956ab25d9b26756efbc62
C030  0xaad0194e53ac05537ef7233610ab5755feb544dd7dbe09ef95054a8a4f477117 0xfeb544dd7dbe09ef95054a8a4f477117aad0194e53ac05537ef7233610ab5755
C031  0x208bcce3ef7813eada2259efa92ce900b8f2db9e6476ff5b402916707f2c5719 0xb8f2db9e6476ff5b402916707f2c5719208bcce3ef7813eada2259efa92ce900
C032  0x3fba8d15d15b203180365f58b19f8ece8777b402056478ccd3f7c87ff9913d76 0x8777b402056478ccd3f7c87ff9913d763fba8d15d15b203180365f58b19f8ece
C033  0xde267f1bbd581762b45337f8c224079c673552a7bc755b073555d95728f16667 0x673552a7bc755b073555d95728f16667de267f1bbd581762b45337f8c224079c
C034  0x46959bfa9d2593c8875e5a8a778d8cecceef7ab073ae75c24eabd8e30ade540e 0xceef7ab073ae75c24eabd8e30ade540e46959bfa9d2593c8875e5a8a778d8cec
C035  0xd090b22e6e582f399d22072202aeb1cdaf72a99878f2a2329faf8a34f01ee041 0xaf72a99878f2a2329faf8a34f01ee041d090b22e6e582f399d22072202aeb1cd
C036  0x25ff265c93a6a856e13a45253a058448ccdf71af9479aac16563b1226a468688 0xccdf71af9479aac16563b1226a46868825ff265c93a6a856e13a45253a058448
C037  0xfa8245b1dcaed279892d37117cf2ac1f048101493b7f4b033b4f8a27b6547fc7 0x048101493b7f4b033b4f8a27b6547fc7fa8245b1dcaed279892d37117cf2ac1f
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1633
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 893.555 mV
buck1 voltage: 0.000 mV
buck2 voltage: 949.516 mV
buck3 voltage: 1798.068 mV
buck4 voltage: 1205.214 mV
buck5 voltage: 1063.943 mV
buck6 voltage: 0.000 mV
buck7 voltage: 849.003 mV
buck8 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 893.297 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1067.289 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x10
  device answered at 0x38
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x36
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 3 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 4 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Toshiba
  capacity: 137 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01634
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x8000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 901.862 mV
ibuck0: 351.79 mA
vbuck1: 0.000 mV
vbuck2: 944.712 mV
vbuck5: 1060.569 mV
vldo8: 3022.020 mV
vldo9: 1797.906 mV
inand: 48.98 mA
vbuck3: 1806.277 mV
ibuck3: 94.74 mA
vbuck4: 1207.456 mV
vldo1: 2813.599 mV
vldo2: 2992.547 mV
vldo4: 1794.733 mV
vldo5: 3311.098 mV
vldo10: 2921.144 mV
vldo11: 1791.152 mV
vldo3: 2983.772 mV
vldo6: 3317.203 mV
vbuck6: 0.000 mV
vbuck7: 844.328 mV
vbuck8: 0.000 mV
PMU built-in self test
BIST ldo3: 2993.799 mV
BIST ildo3: 1763.97 uA
BIST buck3: 1801.653 mV
BIST ldo6: 3306.929 mV
BIST ildo6: 822.08 uA
BIST buck0: 903.679 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5666.131 mV
chestnut vldo2 : 5717.934 mV
chestnut vldo3 : 5104.813 mV
chestnut ildo1 : 12.54 mA
chestnut ildo2 : 11.74 mA
chestnut ildo3 : 6.37 mA
chestnut vneg : -5670.664 mV
chestnut ineg : 10.98 mA
chestnut vin : 3830.334 mV
chestnut ground : 2.000 mV
chestnut vboost : 5953.788 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5020.049 mV
tigris ibus : 410.72 mA
tigris vbat : 3880.884 mV
tigris ibat : 284.49 mA
tigris vdd : 3802.591 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN20EELL/A
Regn  LL/A
RMd#  A1634
MLB#  xxxxx®
BMac  4D:AA:95:0B:42:0E
WMac  ED:1D:F8:5A:3F:BD
NvSn  2E932F449DAEA954
Batt  F5D811B228CA9BD37
LCM#  C11449DAEA954811B22
CLHS  0x00000001
Sku   0xAA950B42
Mode  0x00000000
C000  0x7500a3b165eeff55995950559f6cd98215ed57f4b2e7368c535b9c1b36051578 0x15ed57f4b2e7368c535b9c1b360515787500a3b165eeff55995950559f6cd982
C001  0x1a8565cb4728ad3ffe795de8b16f57aadf86263d7f9caafe60a716fa420f1103 0xdf86263d7f9caafe60a716fa420f11031a8565cb4728ad3ffe795de8b16f57aa
C002  0x74648ae376e935884acc5866a1b2bc9c679538d6e1e3942d851fa166225ddba2 0x679538d6e1e3942d851fa166225ddba274648ae376e935884acc5866a1b2bc9c
C003  0xad224089e1325376412d7a3ce1517a14b1c59d3027dfe06f54f2b37538cfc07b 0xb1c59d3027dfe06f54f2b37538cfc07bad224089e1325376412d7a3ce1517a14
C004  0x382a83907adbd6381f9b655ae44862b8b781aa1401b0b7b1ec7bb91cbd409a52 0xb781aa1401b0b7b1ec7bb91cbd409a52382a83907adbd6381f9b655ae44862b8
C005  0x3d23d4ef5b6f952aecf31e3172d9605f1cf34548d104e6cf4bd8a66068bdb958 0x1cf34548d104e6cf4bd8a66068bdb9583d23d4ef5b6f952aecf31e3172d9605f
C006  0xf0fbcd2bf205405292bc0ef5302b6c6cbab997cbadb94878dab1fa650eeb8539 0xbab997cbadb94878dab1fa650eeb8539f0fbcd2bf205405292bc0ef5302b6c6c
C007  0x57c8adbc6978450917fcf8f3caff78a6b913c444f4f4b44188d8002cb807309e 0xb913c444f4f4b44188d8002cb807309e57c8adbc6978450917fcf8f3caff78a6
C008  0x461df5ce8e5e904ffb0eae7017395b113fac3dd32b88471005e1e5ca79006590 0x3fac3dd32b88471005e1e5ca79006590461df5ce8e5e904ffb0eae7017395b11
C009  0xb1166bf8cfec62158fcbc89a2563fedca6744b59b576a8d72abf8ef52e38fcca 0xa6744b59b576a8d72abf8ef52e38fccab1166bf8cfec62158fcbc89a2563fedc
C00A  0xdfe2014ff62e5f6b52d0616dae955ab3becd54305f62483843cd3992a239b2f9 0xbecd54305f62483843cd3992a239b2f9dfe2014ff62e5f6b52d0616dae955ab3
C00B  0xdf5b7ae3d543486075a9214e000a53bbe588fa2b0441e6eb74c37700ae3c4e74 0xe588fa2b0441e6eb74c37700ae3c4e74df5b7ae3d543486075a9214e000a53bb
C00C  0x0b9b07eed9dc8a5ff331c1c9e58be4d2dcdfe1bb33f5bbb2d07453d89ffd3130 0xdcdfe1bb33f5bbb2d07453d89ffd31300b9b07eed9dc8a5ff331c1c9e58be4d2
C00D  0x2dc07866b37fda5ae5b8d591d93a81e051ec1119e724e9b9d2202f6d68ab9145 0x51ec1119e724e9b9d2202f6d68ab91452dc07866b37fda5ae5b8d591d93a81e0
C00E  0x6d18c6d7f6ebe768c304b944d2e3a4920c83ad5c892e3a9966905a70cd6ab053 0x0c83ad5c892e3a9966905a70cd6ab0536d18c6d7f6ebe768c304b944d2e3a492
C00F  0x802b3aca63ad507a29906200d530be910e1e140e975aa35b060cb073e75a6407 0x0e1e140e975aa35b060cb073e75a6407802b3aca63ad507a29906200d530be91
C010  0x22b2a6d4fa5f72a65061854d4e8981b9caa2c87a1d385da71c5c3cbbe4968409 0xcaa2c87a1d385da71c5c3cbbe496840922b2a6d4fa5f72a65061854d4e8981b9
C011  0x632caa2c3a411159ced1cf281deeafec4c0698e083ce83afeabe8e3438815813 0x4c0698e083ce83afeabe8e3438815813632caa2c3a411159ced1cf281deeafec
C012  0x917877fe09477e1914c0a9f72840617f88da1257bc7f4fffb4eaaf9b0a08cadd 0x88da1257bc7f4fffb4eaaf9b0a08cadd917877fe09477e1914c0a9f72840617f
C013  0x39850747c6825f761e92183bf5651c066d6544d25003dd9292821c30fdaed5f6 0x6d6544d25003dd9292821c30fdaed5f639850747c6825f761e92183bf5651c06
C014  0x0794bfc413e859122a58828005ec3569690ef84ea882df4b38412ed5df178e7a 0x690ef84ea882df4b38412ed5df178e7a0794bfc413e859122a58828005ec3569
C015  0x72dc27f48b9bd7b884b1a26bce9c4bf7cdd55d08cd5926b22e66596f16414bb0 0xcdd55d08cd5926b22e66596f16414bb072dc27f48b9bd7b884b1a26bce9c4bf7
C016  0x6fecf7437605c5e2d5154264744261d68f29c87f7dc5d82df95964089e656feb 0x8f29c87f7dc5d82df95964089e656feb6fecf7437605c5e2d5154264744261d6
C017  0x4960c0f63008d090dd28f86409d19dcc786d36cd093532bdecc9725e7304f7d0 0x786d36cd093532bdecc9725e7304f7d04960c0f63008d090dd28f86409d19dcc
C018  0x75b6a2f2468db9e3e93a6c44a331fcf339f89d1f8f4c8e5b05fb6926b9e2ae58 0x39f89d1f8f4c8e5b05fb6926b9e2ae5875b6a2f2468db9e3e93a6c44a331fcf3
C019  0xd532e764748c0b2cdd2a0c1b5d4deb83762cd914cc02189d844cfbbd8f9becec 0x762cd914cc02189d844cfbbd8f9bececd532e764748c0b2cdd2a0c1b5d4deb83
C01A  0x3832252c589c184e3cfc213c7220aab0de3f72c4f1659bca36fb1b5c554d735c 0xde3f72c4f1659bca36fb1b5c554d735c3832252c589c184e3cfc213c7220aab0
C01B  0x1780bab906a9fd0afeb66b0bf9e8be8f3c6af4cd4b150d98a0ba2e51f60d5d7d 0x3c6af4cd4b150d98a0ba2e51f60d5d7d1780bab906a9fd0afeb66b0bf9e8be8f
C01C  0xd822b649eb0dfd03610720c9b801c05145b35761bdd9c735654458c4f6341390 0x45b35761bdd9c735654458c4f6341390d822b649eb0dfd03610720c9b801c051
C01D  0x7d6b66a0d9845241870fd0bcf5fd8c03f67e49d931f7d484fb0f81c558b6612e 0xf67e49d931f7d484fb0f81c558b6612e7d6b66a0d9845241870fd0bcf5fd8c03
C01E  0x6e18d2022b191b50c75739c98bbdf29a690ff9a6f9d9645d408e139b80ab0e12 0x690ff9a6f9d9645d408e139b80ab0e126e18d2022b191b50c75739c98bbdf29a
C01F  0xde3c82b75c69c4b0766947e94b34128a34c846dc6eac0aa89c0176cac5929cf9 0x34c846dc6eac0aa89c0176cac5929cf9de3c82b75c69c4b0766947e94b34128a
C020  0xbdbbba9eef8d5b8f788d87ccabe8a00eb79f2c256be387f332722726b31804f7 0xb79f2c256be387f332722726b31804f7bdbbba9eef8d5b8f788d87ccabe8a00e
C021  0x7c0108d9c9b90dcd1cabcd9144b6c09db7e84186d893890502ccc7f0de644071 0xb7e84186d893890502ccc7f0de6440717c0108d9c9b90dcd1cabcd9144b6c09d
C022  0x799d6b46deb09c716fb0fe21f8ee55644a1d1f951e0b33c4e41bc35cc9cdcf5f 0x4a1d1f951e0b33c4e41bc35cc9cdcf5f799d6b46deb09c716fb0fe21f8ee5564
C023  0xaa82fa8ee4eb1f4e58a90a38b8e4e142b2d73ee6970e3e7a14bc04b75fc449b7 0xb2d73ee6970e3e7a14bc04b75fc449b7aa82fa8ee4eb1f4e58a90a38b8e4e142
C024  0x80b4d0b7e4f1dbb1c9663f5f64880b22e03ad524ee022f6e47658b10c137e611 0xe03ad524ee022f6e47658b10c137e61180b4d0b7e4f1dbb1c9663f5f64880b22
C025  0x65241bc9cf629886cb13ca7f0d08ead6c0b32b07caa8757cafb108d2b1587e32 0xc0b32b07caa8757cafb108d2b1587e3265241bc9cf629886cb13ca7f0d08ead6
C026  0x4cbe39b12f38dfa2a12b91626518cd2008682b9989f9466cfccd07560d07e8f6 0x08682b9989f9466cfccd07560d07e8f64cbe39b12f38dfa2a12b91626518cd20
C027  0x09dc43835e3c8f1de5bea62f149aed06a7cab181f41002dbc29edd05d1c3c5e8 0xa7cab181f41002dbc29edd05d1c3c5e809dc43835e3c8f1de5bea62f149aed06
C028  0x0e473ae615d99178be562aeb3e3ba344eb76108bcdf7e7bdb4869621c3211c28 0xeb76108bcdf7e7bdb4869621c3211c280e473ae615d99178be562aeb3e3ba344
C029  0x05ed25ba8ca3a586efeed4a420032f9fe092fc25e379dd0ffcfd90d86279f012 0xe092fc25e379dd0ffcfd90d86279f01205ed25ba8ca3a586efeed4a420032f9f
C02A  0x0f5f9b8fd6d9f92a79a8f706d01f957de882c0e44ef5c40d52fb23066ed4022a 0xe882c0e44ef5c40d52fb23066ed4022a0f5f9b8fd6d9f92a79a8f706d01f957d
C02B  0xb02fe9f257baf99aff59ff982c2d863c2bbb6f3b1b532b315be7a5ff8ceecda9 0x2bbb6f3b1b532b315be7a5ff8ceecda9b02fe9f257baf99aff59ff982c2d863c
C02C  0xdf41dd47b11e54e25bfdf78918ff36d72840477181228e56ed263c5aa239d5a5 0x2840477181228e56ed263c5aa239d5a5df41dd47b11e54e25bfdf78918ff36d7
C02D  0x5461a6ef92aa83e669e4a5e95bff45a57da72cbe864b56f193a37dafa28de4ea 0x7da72cbe864b56f193a37dafa28de4ea5461a6ef92aa83e669e4a5e95bff45a5
C02E  0xec529407bdfd26385f7def1fef993ff46465e3d079802c5b27ba87059ad1d719 0x6465e3d079802c5b27ba87059ad1d719ec529407bdfd26385f7def1fef993ff4
C02F  0x99f0ead15b1f4dea81135236caaacccd4c2b767a5abb517e6bd20280f8771043 0x4c2b767a5abb517e6bd20280f877104399f0ead15b1f4dea81135236caaacccd
C030  0xb1d1b291a638c53dbf7cfd2df12f6a2458482bf1c38b0ef1ebe627cc8b0285ea 0x58482bf1c38b0ef1ebe627cc8b0285eab1d1b291a638c53dbf7cfd2df12f6a24
C031  0x82d71a252a84bb2398a6561ffc850cf624c822b595ec2359c60b368ae25b7110 0x24c822b595ec2359c60b368ae25b711082d71a252a84bb2398a6561ffc850cf6
C032  0x3ab58b6d3dbf0f66775d5a6bfb7f4b99bc7a4babcb1f6580995c7536ef8c5c7f 0xbc7a4babcb1f6580995c7536ef8c5c7f3ab58b6d3dbf0f66775d5a6bfb7f4b99
C033  0x15d4c23b2f2b89d2a50376e8df5f9eaf8a83b7d63b1630fc2f9d4509b5ff0249 0x8a83b7d63b1630fc2f9d4509b5ff024915d4c23b2f2b89d2a50376e8df5f9eaf
C034  0x18c2909fa7c443fa47eecdae2bbedbbde66d179604b9859f0e4dc25a290676d7 0xe66d179604b9859f0e4dc25a290676d718c2909fa7c443fa47eecdae2bbedbbd
C035  0xf807687b6b5c3b7604ef57866b1cfee2b64bd3fea419063ef6d721d654a29502 0xb64bd3fea419063ef6d721d654a29502f807687b6b5c3b7604ef57866b1cfee2
C036  0xe2c70de883a43783b8fc930e47718b90d34c62badb56db21c38bc3dcee421161 0xd34c62badb56db21c38bc3dcee421161e2c70de883a43783b8fc930e47718b90
C037  0x43dc81de195e4ddf39d1652b924191c501768d42e66024aa81cf135e42958c65 0x01768d42e66024aa81cf135e42958c6543dc81de195e4ddf39d1652b924191c5
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1634
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 902.383 mV
buck1 voltage: 0.000 mV
buck2 voltage: 955.973 mV
buck3 voltage: 1798.146 mV
buck4 voltage: 1095.103 mV
buck5 voltage: 1057.420 mV
buck6 voltage: 1243.764 mV
buck7 voltage: 848.354 mV
buck8 voltage: 0.000 mV
buck9 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 904.698 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1052.023 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x36
  device answered at 0x50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x37
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 3
  device answered at 0x33
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 4
  device answered at 0x3a
  device answered at 0x4c
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Hynix
  capacity: 137 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01660
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x8000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 893.630 mV
ibuck0: 352.33 mA
vbuck1: 0.000 mV
vbuck2: 945.957 mV
vbuck5: 1066.150 mV
vldo8: 3000.319 mV
vldo9: 1789.578 mV
inand: 48.57 mA
vbuck3: 1807.315 mV
ibuck3: 95.79 mA
vbuck4: 1107.475 mV
vldo1: 2792.300 mV
vldo2: 2998.973 mV
vldo4: 1805.833 mV
vldo5: 3320.703 mV
vldo10: 2884.337 mV
vldo11: 1794.143 mV
vldo7: 2988.148 mV
vldo6: 2990.349 mV
vbuck6: 1240.520 mV
vbuck7: 855.372 mV
vbuck8: 0.000 mV
vbuck9: 0.000 mV
PMU built-in self test
BIST ldo7: 3018.325 mV
BIST ildo7: 1765.56 uA
BIST buck3: 1805.913 mV
BIST ldo6: 3013.788 mV
BIST ildo6: 817.49 uA
BIST buck0: 893.539 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5672.321 mV
chestnut vldo2 : 5745.570 mV
chestnut vldo3 : 5117.153 mV
chestnut ildo1 : 12.43 mA
chestnut ildo2 : 11.72 mA
chestnut ildo3 : 6.37 mA
chestnut vneg : -5675.059 mV
chestnut ineg : 10.83 mA
chestnut vin : 3844.998 mV
chestnut ground : 2.000 mV
chestnut vboost : 5973.581 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5010.991 mV
tigris ibus : 411.86 mA
tigris vbat : 3884.100 mV
tigris ibat : 285.16 mA
tigris vdd : 3818.355 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MNC0CFLL/A
Regn  LL/A
RMd#  A1660
MLB#  xxxxx®
BMac  14:60:5E:3B:FC:0C
WMac  F1:24:E0:F2:EA:06
NvSn  9BEACA871E0DD6FB
Batt  F5D7D73E945C35936
LCM#  C11871E0DD6FB7D73E9
CLHS  0x00000001
Sku   0x605E3BFC
Mode  0x00000000
C000  0xf10370675f0461ca8a09229d5e8902431bb4066292dc170e92af482c4ce76d6d 0x1bb4066292dc170e92af482c4ce76d6df10370675f0461ca8a09229d5e890243
C001  0x794a30f03c8f90e3b8325dc90c94c48f9a8bc76b502729a85eeb704e1ed457d6 0x9a8bc76b502729a85eeb704e1ed457d6794a30f03c8f90e3b8325dc90c94c48f
C002  0x473b5842afd45946457090035e3a78ad2d01d10ec601be84e9b195e240b5f08a 0x2d01d10ec601be84e9b195e240b5f08a473b5842afd45946457090035e3a78ad
C003  0x7235773687ea656b22949baf4ff29272f4f3bf5aed3098d0c598657f743b797c 0xf4f3bf5aed3098d0c598657f743b797c7235773687ea656b22949baf4ff29272
C004  0xb4f6fc822207ebcea928da7c23c3c747a1a965146656f3051dc2cd26173639fc 0xa1a965146656f3051dc2cd26173639fcb4f6fc822207ebcea928da7c23c3c747
C005  0xd04cf2a3341d61996fc2e135c43a5eac564f580402f878e9717fb1514e1b94e5 0x564f580402f878e9717fb1514e1b94e5d04cf2a3341d61996fc2e135c43a5eac
C006  0x2c7755597747a678a2b42d0cd223051df5a2b6a685c916d3bb63207474a54865 0xf5a2b6a685c916d3bb63207474a548652c7755597747a678a2b42d0cd223051d
C007  0xde2711f0c18e23cd1992bf2959833655143b1b834d7f13ba6842cf7cc4915107 0x143b1b834d7f13ba6842cf7cc4915107de2711f0c18e23cd1992bf2959833655
C008  0x4eb634fbe01d59329adb9460eae025e4365622081a0c7b1acc92318b7fa5e4a8 0x365622081a0c7b1acc92318b7fa5e4a84eb634fbe01d59329adb9460eae025e4
C009  0xc37f2bafb47a0d0f9bb27c61da44ca710dcf1f9dab8f474f499fbf9a46630669 0x0dcf1f9dab8f474f499fbf9a46630669c37f2bafb47a0d0f9bb27c61da44ca71
C00A  0xcf2c0a2ed296351925018f57240db262cef728612bdfd6a128eff15ff315d78e 0xcef728612bdfd6a128eff15ff315d78ecf2c0a2ed296351925018f57240db262
C00B  0x633eef5bd3ecde741c66bf712c5480f6a97f02a5232b656c6490735484e45f30 0xa97f02a5232b656c6490735484e45f30633eef5bd3ecde741c66bf712c5480f6
C00C  0xb10d6d677ed3997fb9a88f0eb2db608076a7833be0d59818cc6a361c1db057ba 0x76a7833be0d59818cc6a361c1db057bab10d6d677ed3997fb9a88f0eb2db6080
C00D  0xad97e14df69120ae3b6207fae8d429010495b282f0965ed9e617a53aa22e95fb 0x0495b282f0965ed9e617a53aa22e95fbad97e14df69120ae3b6207fae8d42901
C00E  0x557d34e25ab744eda7539a6a5622cfde0529cd78da498281253f8a7f16db8b91 0x0529cd78da498281253f8a7f16db8b91557d34e25ab744eda7539a6a5622cfde
C00F  0xba70936b92f3d13b4a6fd3d5d2be1184e72b719a7604ed4c3f42fcd93a9085d8 0xe72b719a7604ed4c3f42fcd93a9085d8ba70936b92f3d13b4a6fd3d5d2be1184
C010  0x9a47e19359ec21fc63febd2c47c213377bb16c50ff77477af5035320eaf84cfc 0x7bb16c50ff77477af5035320eaf84cfc9a47e19359ec21fc63febd2c47c21337
C011  0x5f724dc114b43a1b49ab5a150cb7a37aa1ba402029b923e26be48e85403b94c8 0xa1ba402029b923e26be48e85403b94c85f724dc114b43a1b49ab5a150cb7a37a
C012  0xc7532617bbad7b36a532ebebc9f4494a74ed9b90958835202e6dbacb991e1b35 0x74ed9b90958835202e6dbacb991e1b35c7532617bbad7b36a532ebebc9f4494a
C013  0xd5ad6c335d05161d41ef151d22aa3ab1f87ad7b3614b20bbd73aee6a80e14f15 0xf87ad7b3614b20bbd73aee6a80e14f15d5ad6c335d05161d41ef151d22aa3ab1
C014  0xbc47087ba8d3902782037f66107896dc0dc2bb5f7b5fae44fc91fab899c719ce 0x0dc2bb5f7b5fae44fc91fab899c719cebc47087ba8d3902782037f66107896dc
C015  0xa65a9022e4af2ed99cb804de9cc3da54c47f7cddb2b4c4e9aeeb586605360ed7 0xc47f7cddb2b4c4e9aeeb586605360ed7a65a9022e4af2ed99cb804de9cc3da54
C016  0x9bd2fa041245c05a9a4f381db5f1926b8caab2799377b1e388173dfac32ecf35 0x8caab2799377b1e388173dfac32ecf359bd2fa041245c05a9a4f381db5f1926b
C017  0x019f70a4991cd6c526cf714814f6c5f00cdee062853a694787d8815f5a20458d 0x0cdee062853a694787d8815f5a20458d019f70a4991cd6c526cf714814f6c5f0
C018  0x96126788d7fb1e01050cef8b88c8afab63ac94ff07d353878f29889833d3793a 0x63ac94ff07d353878f29889833d3793a96126788d7fb1e01050cef8b88c8afab
C019  0xa6ff76839cc550ea47cecba9ac4c752008d1991e58f47c55c32caf530c00be4a 0x08d1991e58f47c55c32caf530c00be4aa6ff76839cc550ea47cecba9ac4c7520
C01A  0xb95f6bc547828ce6130b2dd0cb438adee8e9a77c25246974781ae4750db8be1a 0xe8e9a77c25246974781ae4750db8be1ab95f6bc547828ce6130b2dd0cb438ade
C01B  0xf8181357619263c9edb5c74a9e14d13e5e6fa92ca46ba84b5fca26b31d71689d 0x5e6fa92ca46ba84b5fca26b31d71689df8181357619263c9edb5c74a9e14d13e
C01C  0x49bd7543f64186b5a1a0fb0087ceee2cab61665e1ca3ef4c3ba36979e979c9ff 0xab61665e1ca3ef4c3ba36979e979c9ff49bd7543f64186b5a1a0fb0087ceee2c
C01D  0x067eae7ab4bc0ab7b70f220b273bb5ef2a1990cb8665d86010774ad4e00bd52e 0x2a1990cb8665d86010774ad4e00bd52e067eae7ab4bc0ab7b70f220b273bb5ef
C01E  0x087f4e0a2278853c83e73060785693e19a16b0b153deddaf56bf19be0ad1c44b 0x9a16b0b153deddaf56bf19be0ad1c44b087f4e0a2278853c83e73060785693e1
C01F  0x79039f9312cf476c56359a26e7a45dc05817a2496e0d4b8cc6af4d1e767becd6 0x5817a2496e0d4b8cc6af4d1e767becd679039f9312cf476c56359a26e7a45dc0
C020  0xf9bc1a6fc5d64133a6f9ae46eb8cab9763b3078fdc8585b864cbb212e38468f1 0x63b3078fdc8585b864cbb212e38468f1f9bc1a6fc5d64133a6f9ae46eb8cab97
C021  0x5a665383bc44676470c7ecb285672ab3a3870f65e01fd24b5273ecfeedcd8c82 0xa3870f65e01fd24b5273ecfeedcd8c825a665383bc44676470c7ecb285672ab3
C022  0x136d024e7057d9df85fae18152174e7c97d745f4fcf499c9fd17e7fef20de235 0x97d745f4fcf499c9fd17e7fef20de235136d024e7057d9df85fae18152174e7c
C023  0x0b46db6b9b0d90a8ceeb94b5d2e128cf60d4c3b267f8e755b0c829bd098c12b3 0x60d4c3b267f8e755b0c829bd098c12b30b46db6b9b0d90a8ceeb94b5d2e128cf
C024  0xf59c0f4092139c457825ee62cf89917c72eaee4bfb640bafc9073368ea02d038 0x72eaee4bfb640bafc9073368ea02d038f59c0f4092139c457825ee62cf89917c
C025  0x7de603a79aa085c71b903f6ca84cf401f69a91e2db94a3ef3155290a49975774 0xf69a91e2db94a3ef3155290a499757747de603a79aa085c71b903f6ca84cf401
C026  0x1ac52a6619f699763a0756230e15458028006a8051b68f43fcefc8e3d45c1908 0x28006a8051b68f43fcefc8e3d45c19081ac52a6619f699763a0756230e154580
C027  0x461d2597e3ba1a4b2f6bf142465ea9afddd06048e30cca6cba6a0d2b1e88cf30 0xddd06048e30cca6cba6a0d2b1e88cf30461d2597e3ba1a4b2f6bf142465ea9af
C028  0x1b6e216725e72319674b03e7f7999f30271a12902139e9b6b82f859fbcdd3ed0 0x271a12902139e9b6b82f859fbcdd3ed01b6e216725e72319674b03e7f7999f30
C029  0xba1286ebaa37365402d87e467994d21f9ca2b1cc1c8bcb605ec563a27de5bc96 0x9ca2b1cc1c8bcb605ec563a27de5bc96ba1286ebaa37365402d87e467994d21f
C02A  0x9e945456efacb5ed214575caa1ada3c83e7c12f471e8b8bfd033c481b02677d5 0x3e7c12f471e8b8bfd033c481b02677d59e945456efacb5ed214575caa1ada3c8
C02B  0x98ee694814564706d7468d89c89756c8892edb7dd328adb86318f56040eed341 0x892edb7dd328adb86318f56040eed34198ee694814564706d7468d89c89756c8
C02C  0x1fdf0ec5049ad2293ec5c279a0c1eb301cf2e6c81c961190c70f9cd650c982f8 0x1cf2e6c81c961190c70f9cd650c982f81fdf0ec5049ad2293ec5c279a0c1eb30
C02D  0x467b9bf1fd920242eaa043cc10cfcf52f9d02e32deaab71f0e50286a4c958bdc 0xf9d02e32deaab71f0e50286a4c958bdc467b9bf1fd920242eaa043cc10cfcf52
C02E  0xe1a4399c62834f33cb7bdef4183861ed8293fdea983501f8a6da9534e020a859 0x8293fdea983501f8a6da9534e020a859e1a4399c62834f33cb7bdef4183861ed
C02F  0x905cd95961aefb87f2c0c3e460ad3270aafbf7e2605e3f539e7412ef50878c83 0xaafbf7e2605e3f539e7412ef50878c83905cd95961aefb87f2c0c3e460ad3270
C030  0xf807fd18278f4571fed5b6e58d01a9fa14f6a782bf5a04cefc47115db13b1dec 0x14f6a782bf5a04cefc47115db13b1decf807fd18278f4571fed5b6e58d01a9fa
C031  0x636d09bad91232cf5589ed396679cf1fded604dd0d40a8eeaafe9a04dd767bbe 0xded604dd0d40a8eeaafe9a04dd767bbe636d09bad91232cf5589ed396679cf1f
C032  0x3cd9e29492ef720e91e0bbd7899f898e0009ffcc90f55c379555d8a7c7046d80 0x0009ffcc90f55c379555d8a7c7046d803cd9e29492ef720e91e0bbd7899f898e
C033  0x6514d96d777d641cfc78a08f21b460302a5d488c8e9547bf798ced9493081439 0x2a5d488c8e9547bf798ced94930814396514d96d777d641cfc78a08f21b46030
C034  0x03c254bbff0751e9e709c3e2f83cab87e110fb3420ac2370d5cbd84ef8480ee2 0xe110fb3420ac2370d5cbd84ef8480ee203c254bbff0751e9e709c3e2f83cab87
C035  0x228ccddfbe19cf49518c3292dd7b028b268386e441973a03703c626b06f88da9 0x268386e441973a03703c626b06f88da9228ccddfbe19cf49518c3292dd7b028b
C036  0x72fd6dde8cfa30946b1fed7e34b5a33d1619834f7a2681cd645faba108dc0f86 0x1619834f7a2681cd645faba108dc0f8672fd6dde8cfa30946b1fed7e34b5a33d
C037  0x937a9ef7f4b5f2da49ea57848ace20eba159f262486ee0710c76b685df112a25 0xa159f262486ee0710c76b685df112a25937a9ef7f4b5f2da49ea57848ace20eb
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1660
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 901.977 mV
buck1 voltage: 0.000 mV
buck2 voltage: 946.832 mV
buck3 voltage: 1800.105 mV
buck4 voltage: 1101.607 mV
buck5 voltage: 1061.174 mV
buck6 voltage: 1254.162 mV
buck7 voltage: 855.916 mV
buck8 voltage: 0.000 mV
buck9 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 901.792 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1053.100 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1a
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x36
  device answered at 0x50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x37
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 3
  device answered at 0x33
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 4
  device answered at 0x3a
  device answered at 0x4c
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 5 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 6 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
i2c: bus 7 does not exist on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Hynix
  capacity: 274 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01661
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x10000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 898.853 mV
ibuck0: 354.08 mA
vbuck1: 0.000 mV
vbuck2: 951.524 mV
vbuck5: 1066.710 mV
vldo8: 2998.907 mV
vldo9: 1801.488 mV
inand: 48.97 mA
vbuck3: 1806.408 mV
ibuck3: 94.86 mA
vbuck4: 1102.397 mV
vldo1: 2807.640 mV
vldo2: 3008.760 mV
vldo4: 1809.035 mV
vldo5: 3293.313 mV
vldo10: 2907.032 mV
vldo11: 1810.415 mV
vldo7: 2977.721 mV
vldo6: 2983.352 mV
vbuck6: 1253.825 mV
vbuck7: 849.124 mV
vbuck8: 0.000 mV
vbuck9: 0.000 mV
PMU built-in self test
BIST ldo7: 2992.706 mV
BIST ildo7: 1762.37 uA
BIST buck3: 1809.161 mV
BIST ldo6: 3005.431 mV
BIST ildo6: 818.52 uA
BIST buck0: 901.250 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5679.993 mV
chestnut vldo2 : 5693.145 mV
chestnut vldo3 : 5136.492 mV
chestnut ildo1 : 12.57 mA
chestnut ildo2 : 11.77 mA
chestnut ildo3 : 6.43 mA
chestnut vneg : -5731.076 mV
chestnut ineg : 10.92 mA
chestnut vin : 3828.030 mV
chestnut ground : 2.000 mV
chestnut vboost : 5974.232 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 4990.262 mV
tigris ibus : 410.30 mA
tigris vbat : 3855.522 mV
tigris ibat : 287.24 mA
tigris vdd : 3763.671 mV
tigris die_temp : 31.25 C
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MNAB66LL/A
Regn  LL/A
RMd#  A1661
MLB#  xxxxx®
BMac  61:72:9A:C2:5A:B6
WMac  67:9E:EF:8D:C2:9E
NvSn  A51B47352211037B
Batt  F5DF468E62698604E
LCM#  C11352211037BF468E6
CLHS  0x00000001
Sku   0x729AC25A
Mode  0x00000000
C000  0xb2693c9421c95fd558d32b9fb96b2820dcb74e13cc0ffe6caec616231887f00d 0xdcb74e13cc0ffe6caec616231887f00db2693c9421c95fd558d32b9fb96b2820
C001  0x1f60c1036a2faebf012f48938c198301d26b6c7c03c2c5d482f8535c3b973185 0xd26b6c7c03c2c5d482f8535c3b9731851f60c1036a2faebf012f48938c198301
C002  0x4659ce322092c8d4bdba51a455830d1d342d89da6e6d975cd2f78a21cc0d5830 0x342d89da6e6d975cd2f78a21cc0d58304659ce322092c8d4bdba51a455830d1d
C003  0xbab9ca6b4431f24b0138a3b8d71ad223bc27fb40de26c2c09b9357b029a2dd7f 0xbc27fb40de26c2c09b9357b029a2dd7fbab9ca6b4431f24b0138a3b8d71ad223
C004  0xb61670409bae5b4998a8949e76b2d9ee3c475a442991d320f050f192055e1df0 0x3c475a442991d320f050f192055e1df0b61670409bae5b4998a8949e76b2d9ee
C005  0xef8d443dc82f372a1c1e24b9dc565a1e62bda017031e64bfa13b60c399160de1 0x62bda017031e64bfa13b60c399160de1ef8d443dc82f372a1c1e24b9dc565a1e
C006  0x3b375eddd24eecb46d74f13f38c0c0cd9c94b8026ecc3016811d7c8c509f713e 0x9c94b8026ecc3016811d7c8c509f713e3b375eddd24eecb46d74f13f38c0c0cd
C007  0x04f145e52e689f7e8595804665a226f48598a174ed86e0c9de6cc1bc05ec79a1 0x8598a174ed86e0c9de6cc1bc05ec79a104f145e52e689f7e8595804665a226f4
C008  0x95098ef859e3ba0d64e420424e562c072b7ac8e158502de559daa87b364ae528 0x2b7ac8e158502de559daa87b364ae52895098ef859e3ba0d64e420424e562c07
C009  0x4d4e1ae94303e6aeb73898d381cd3c18fbb6bb5f6fe54c18b3c6b852f778c6ae 0xfbb6bb5f6fe54c18b3c6b852f778c6ae4d4e1ae94303e6aeb73898d381cd3c18
C00A  0x4b29578e51ff3360077036fed74c860362a584cd98d4c6dd47c9dcf29e12f92a 0x62a584cd98d4c6dd47c9dcf29e12f92a4b29578e51ff3360077036fed74c8603
C00B  0x934c2cc7f57fc0ad2f81f8d74481144d32863e80a2953bfefcf72e2549c14f67 0x32863e80a2953bfefcf72e2549c14f67934c2cc7f57fc0ad2f81f8d74481144d
C00C  0x4fca2f0c7439a937ce9d7f1a8a18ea26d3ef6076644b5ba718253ae0592f292a 0xd3ef6076644b5ba718253ae0592f292a4fca2f0c7439a937ce9d7f1a8a18ea26
C00D  0x185925b3759a62e289599941e6a0c9284b19bd8a5467cfcbf667c6b23167b742 0x4b19bd8a5467cfcbf667c6b23167b742185925b3759a62e289599941e6a0c928
C00E  0x2ec02e94cfffda858fdf228edbb9d372043f3e50f1874bae5257d4aecc0893aa 0x043f3e50f1874bae5257d4aecc0893aa2ec02e94cfffda858fdf228edbb9d372
C00F  0x2eeb95b6a34709e01db8bfc6aa21259537b2be90f5d584c382e5ee66416783c7 0x37b2be90f5d584c382e5ee66416783c72eeb95b6a34709e01db8bfc6aa212595
C010  0x80a9227300aaa23018273cc98a6ef98bd03e35a36d80085a9d45d051c3558588 0xd03e35a36d80085a9d45d051c355858880a9227300aaa23018273cc98a6ef98b
C011  0x69538ee5b525f3dd0f95cd5247a7c38b3a93e45fe441352f9db2a405fb3b9e15 0x3a93e45fe441352f9db2a405fb3b9e1569538ee5b525f3dd0f95cd5247a7c38b
C012  0xe1df04aa391594c9712ffe3df5e9172d1bcb231b70eaddc474c52081ecee5d34 0x1bcb231b70eaddc474c52081ecee5d34e1df04aa391594c9712ffe3df5e9172d
C013  0xa1b6a7fbaabb355fe61a2ed18cb0d5fb0043861c05960a90d036a2af6fed0c00 0x0043861c05960a90d036a2af6fed0c00a1b6a7fbaabb355fe61a2ed18cb0d5fb
C014  0xb7bbb17f67ecbff8cdce8a82c3635550fa3defc47b37783c3bca7f8ac828e702 0xfa3defc47b37783c3bca7f8ac828e702b7bbb17f67ecbff8cdce8a82c3635550
C015  0xeb01a2e5ad852e0b4d321f35a6058024125fbe100c58127a3308a202fc1cabf4 0x125fbe100c58127a3308a202fc1cabf4eb01a2e5ad852e0b4d321f35a6058024
C016  0x4c0cc1fd6af063a139cf750b818c75b0b80686f2402d797fc1c447a9e1119250 0xb80686f2402d797fc1c447a9e11192504c0cc1fd6af063a139cf750b818c75b0
C017  0x684d42d4485de4aa13b55edc4183e3a120573b6a6d0a0c0ca2b01b1f7c8b8708 0x20573b6a6d0a0c0ca2b01b1f7c8b8708684d42d4485de4aa13b55edc4183e3a1
C018  0x82bcfd09703cf1192138d7bbea5a0048bc537648f9302ec65ff7f6fc8c8f18eb 0xbc537648f9302ec65ff7f6fc8c8f18eb82bcfd09703cf1192138d7bbea5a0048
C019  0x960f089cb00d01d9af446ef276d46c99a475e89841ab333034e03465dd2cf2c9 0xa475e89841ab333034e03465dd2cf2c9960f089cb00d01d9af446ef276d46c99
C01A  0x8325d5527ddd25c6256382d2e967a0db6df483ef9bc12a659c28fddc2086bc2a 0x6df483ef9bc12a659c28fddc2086bc2a8325d5527ddd25c6256382d2e967a0db
C01B  0xa24bec4210a041eb17a6a445d3fa6469d6bf9318a9b3b8c467a4fe93314e20e2 0xd6bf9318a9b3b8c467a4fe93314e20e2a24bec4210a041eb17a6a445d3fa6469
C01C  0xc763490742a168b322e8ca8546129793ff02220c442dc3b1f2324b9fe9cad392 0xff02220c442dc3b1f2324b9fe9cad392c763490742a168b322e8ca8546129793
C01D  0x7b70aaa2535d2d3bbb6fb58f51b1c341e8048458c480d49feecefb44bd3d6d57 0xe8048458c480d49feecefb44bd3d6d577b70aaa2535d2d3bbb6fb58f51b1c341
C01E  0x35528c0cf3d9471cbb82563c3b390a2bbdd5cb57e62b54aeee19c4878a00a9fa 0xbdd5cb57e62b54aeee19c4878a00a9fa35528c0cf3d9471cbb82563c3b390a2b
C01F  0x51e2c247f743829b414ca5a2a2827f20d8d8d1a3052f3ec9ef2c648a3d51ca42 0xd8d8d1a3052f3ec9ef2c648a3d51ca4251e2c247f743829b414ca5a2a2827f20
C020  0xcb317c8f0369b52f594b3a11a30838ef857e2724d5fae1c135664d08bfc79567 0x857e2724d5fae1c135664d08bfc79567cb317c8f0369b52f594b3a11a30838ef
C021  0x724a53dd6efb62ba65656bd98bd340ac2102c7a136560b564ea50f79bc1604b7 0x2102c7a136560b564ea50f79bc1604b7724a53dd6efb62ba65656bd98bd340ac
C022  0xde9b704550b460b6befd5076f5bb875eccbc0c728c30d9446e9dd113936e1523 0xccbc0c728c30d9446e9dd113936e1523de9b704550b460b6befd5076f5bb875e
C023  0xb2777af96d3e1f57928d6968b6c8304f87729402a991efb798784262497a1577 0x87729402a991efb798784262497a1577b2777af96d3e1f57928d6968b6c8304f
C024  0x62691cdab5ab15f04cb65c3268fd23dedc8cef1c929a8dd0690437398f3aad08 0xdc8cef1c929a8dd0690437398f3aad0862691cdab5ab15f04cb65c3268fd23de
C025  0x9a3268c31ef2bb8cdd6b97755c5813e0eb499a89ad21c5ae49f79dc0ae310f68 0xeb499a89ad21c5ae49f79dc0ae310f689a3268c31ef2bb8cdd6b97755c5813e0
C026  0x8fe822fa4728e410eeab8785dae220afe701ef2a509a4a6050466339610fa896 0xe701ef2a509a4a6050466339610fa8968fe822fa4728e410eeab8785dae220af
C027  0x2c4f895769edac52ad1cacb8200915b9d6b5c1730ed919ecf3cbf9e26aca4a9f 0xd6b5c1730ed919ecf3cbf9e26aca4a9f2c4f895769edac52ad1cacb8200915b9
C028  0x7c5f2368a0950512375ebd69dbfb67b29a5246939c657c29211ca8ae536d12c4 0x9a5246939c657c29211ca8ae536d12c47c5f2368a0950512375ebd69dbfb67b2
C029  0xabc663797ad83ef43686bf79d6e4078704ef54e3254a51afa40f491a02cab76c 0x04ef54e3254a51afa40f491a02cab76cabc663797ad83ef43686bf79d6e40787
C02A  0x9ddcfefd5ffd98f72e5be729ab830b0c31644204f5cdea6ef53d893b1f6dd5a5 0x31644204f5cdea6ef53d893b1f6dd5a59ddcfefd5ffd98f72e5be729ab830b0c
C02B  0xf3e73344c23c3d6b44bfa6eaabf3cbc58e7ef7f13db97dc614d8da3b0c0e07f7 0x8e7ef7f13db97dc614d8da3b0c0e07f7f3e73344c23c3d6b44bfa6eaabf3cbc5
C02C  0xc61beac73e3f83e61d52b5c75c1d96c9ffa3e315c4bae2a5a23876a640b7d433 0xffa3e315c4bae2a5a23876a640b7d433c61beac73e3f83e61d52b5c75c1d96c9
C02D  0x2abad987b914ecb5caabad52490f368b9a6ff31b8e84edef36d6b4120d683cda 0x9a6ff31b8e84edef36d6b4120d683cda2abad987b914ecb5caabad52490f368b
C02E  0x9ece8947fb2ba6d75895f84082b77e818ce20b7b4251e64c84b54c16934d6546 0x8ce20b7b4251e64c84b54c16934d65469ece8947fb2ba6d75895f84082b77e81
C02F  0x5388db04741b342c7e199ac98dccab80c7e6bab7d322704e7118a75b6b03ecb6 0xc7e6bab7d322704e7118a75b6b03ecb65388db04741b342c7e199ac98dccab80
C030  0x670ff2ea0577427c04d6438692ddd7f82f3edfbdba14d72186b8e311c4f0c359 0x2f3edfbdba14d72186b8e311c4f0c359670ff2ea0577427c04d6438692ddd7f8
C031  0x7a8638bc57db0bc1d0a3176a4cb73de6568f184dda41a98f50ce378ebc097019 0x568f184dda41a98f50ce378ebc0970197a8638bc57db0bc1d0a3176a4cb73de6
C032  0xaf3d86934f6da3548469b2b2593dc824e86e0a9ee107836a71b6f40502b31fea 0xe86e0a9ee107836a71b6f40502b31feaaf3d86934f6da3548469b2b2593dc824
C033  0x7b61043a3af009665ccd1e01b250ae6f0de088d2e346096f3699c5609ed02ca1 0x0de088d2e346096f3699c5609ed02ca17b61043a3af009665ccd1e01b250ae6f
C034  0xca93e7da2306efffd6f86563fc280f21fa92691ecc1edb4315e7262afc1fe030 0xfa92691ecc1edb4315e7262afc1fe030ca93e7da2306efffd6f86563fc280f21
C035  0xefd2a6d5784247a3dca05c015da9e5b36948eae81ded6b16011deed8744b4ff5 0x6948eae81ded6b16011deed8744b4ff5efd2a6d5784247a3dca05c015da9e5b3
C036  0x43ed3a50328caa0ab5aeba9ec0f1af3c68b04d1b3dcb179e98063a59355f5b19 0x68b04d1b3dcb179e98063a59355f5b1943ed3a50328caa0ab5aeba9ec0f1af3c
C037  0x4559dfc5f4a4a25c199acf990aed6e5b87ad539f812ac58af6b0479998618970 0x87ad539f812ac58af6b04799986189704559dfc5f4a4a25c199acf990aed6e5b
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1661
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
tristar dx1: 0x12 (USB data +)
tristar dx2: 0x13 (USB data -)
tristar acc1: 0x40 (accessory id 1)
tristar acc2: 0x41 (accessory id 2)
tristar idx: 0x07 (identification bus)
tristar vdx: 0x1C (data line voltage detect)
tristar communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
tristar id: TRISTAR rev B1
tristar reg 0x10 = 0x5B
tristar reg 0x11 = 0x80
tristar reg 0x12 = 0xA5
tristar reg 0x13 = 0xCA
tristar reg 0x14 = 0xEF
tristar reg 0x15 = 0x14
tristar reg 0x16 = 0x39
tristar reg 0x17 = 0x5E
tristar reg 0x18 = 0x83
tristar reg 0x19 = 0xA8
tristar reg 0x1A = 0xCD
tristar reg 0x1B = 0xF2
tristar reg 0x1C = 0x17
tristar reg 0x1D = 0x3C
tristar reg 0x1E = 0x61
tristar reg 0x1F = 0x86
tristar reg 0x20 = 0xAB
tristar reg 0x21 = 0xD0
tristar reg 0x22 = 0xF5
tristar reg 0x23 = 0x1A
tristar reg 0x24 = 0x3F
tristar reg 0x25 = 0x64
tristar reg 0x26 = 0x89
tristar reg 0x27 = 0xAE
tristar reg 0x28 = 0xD3
tristar reg 0x29 = 0xF8
tristar reg 0x2A = 0x1D
tristar reg 0x2B = 0x42
tristar reg 0x2C = 0x67
tristar reg 0x2D = 0x8C
tristar reg 0x2E = 0xB1
tristar reg 0x2F = 0xD6
tristar reg 0x30 = 0xFB
tristar reg 0x31 = 0x20
tristar reg 0x32 = 0x45
tristar reg 0x33 = 0x6A
tristar reg 0x34 = 0x8F
tristar reg 0x35 = 0xB4
tristar reg 0x36 = 0xD9
tristar reg 0x37 = 0xFE
tristar reg 0x38 = 0x23
tristar reg 0x39 = 0x48
tristar reg 0x3A = 0x6D
tristar reg 0x3B = 0x92
tristar reg 0x3C = 0xB7
tristar reg 0x3D = 0xDC
tristar reg 0x3E = 0x01
tristar reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 903.318 mV
buck1 voltage: 0.000 mV
buck2 voltage: 948.649 mV
buck3 voltage: 1805.520 mV
buck4 voltage: 1098.795 mV
buck5 voltage: 1057.119 mV
buck6 voltage: 1255.023 mV
buck7 voltage: 849.474 mV
buck8 voltage: 0.000 mV
buck9 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 897.409 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1056.674 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1b
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x72
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x37
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 3
  device answered at 0x33
  device answered at 0x51
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 4
  device answered at 0x4c
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 5
  no device answered
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 6
  device answered at 0x36
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 7
  device answered at 0x40
  device answered at 0x41
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Toshiba
  capacity: 68 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01863
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x4000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 903.393 mV
ibuck0: 354.74 mA
vbuck1: 0.000 mV
vbuck2: 944.723 mV
vbuck5: 1060.391 mV
vldo8: 3004.682 mV
vldo9: 1787.726 mV
inand: 48.28 mA
vbuck3: 1789.333 mV
ibuck3: 95.46 mA
vbuck4: 1095.822 mV
vldo1: 2790.252 mV
vldo2: 3003.249 mV
vldo4: 1793.339 mV
vldo5: 3310.018 mV
vldo10: 2918.235 mV
vldo11: 1796.890 mV
vldo7: 3002.380 mV
vldo6: 3013.306 mV
vbuck6: 1251.513 mV
vbuck7: 854.762 mV
vbuck8: 0.000 mV
vbuck9: 0.000 mV
PMU built-in self test
BIST ldo7: 2990.228 mV
BIST ildo7: 3398.78 uA
BIST buck3: 1797.639 mV
BIST ldo6: 3009.335 mV
BIST ildo6: 826.78 uA
BIST buck0: 899.926 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5733.356 mV
chestnut vldo2 : 5711.894 mV
chestnut vldo3 : 5135.669 mV
chestnut ildo1 : 12.41 mA
chestnut ildo2 : 11.72 mA
chestnut ildo3 : 6.40 mA
chestnut vneg : -5711.450 mV
chestnut ineg : 10.97 mA
chestnut vin : 3878.571 mV
chestnut ground : 2.000 mV
chestnut vboost : 6040.455 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5025.051 mV
tigris ibus : 410.68 mA
tigris vbat : 3844.197 mV
tigris ibat : 283.84 mA
tigris vdd : 3806.300 mV
tigris die_temp : 31.25 C
tigris vbus1 : 5013.473 mV
tigris vbus2 : 5027.371 mV
tigris vldo : 1788.810 mV
tigris vntc : 615.273 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN0A82LL/A
Regn  LL/A
RMd#  A1863
MLB#  xxxxx®
BMac  44:C3:B4:7E:30:A8
WMac  2F:A7:4A:87:37:1B
NvSn  2B94D7A4CE85BB25
Batt  F5DC057119FF1700A
LCM#  C11A4CE85BB25C05711
CLHS  0x00000001
Sku   0xC3B47E30
Mode  0x00000000
C000  0xaf54314d51ce010c5741a6ca823654b38bcfee9ba3f5e6312209c2b32143c3e6 0x8bcfee9ba3f5e6312209c2b32143c3e6af54314d51ce010c5741a6ca823654b3
C001  0x2549bc9c576a35a6e169f43580dfcb2d7f87a46f066d70571264e3155a424268 0x7f87a46f066d70571264e3155a4242682549bc9c576a35a6e169f43580dfcb2d
C002  0x720483403b5d6088fdffc7cfcf3196329ae44494d8744835e4fefbfc864f1266 0x9ae44494d8744835e4fefbfc864f1266720483403b5d6088fdffc7cfcf319632
C003  0x816da620e887ede35a62fcc2f9db763b069c776c50e3dd58b078b469c1991a76 0x069c776c50e3dd58b078b469c1991a76816da620e887ede35a62fcc2f9db763b
C004  0xeb3d20a41a9601aa18fd4b00febfb4c8bc93600e48ad301d2cff498eb3259952 0xbc93600e48ad301d2cff498eb3259952eb3d20a41a9601aa18fd4b00febfb4c8
C005  0x27a2baafd169f873e00b9a1eb9c1a698e18e244774d1aee37148e2c6c3b95120 0xe18e244774d1aee37148e2c6c3b9512027a2baafd169f873e00b9a1eb9c1a698
C006  0x51bbc96102898d1ca85f31a9300bae75b537c22c9752a713542eae990d4863bc 0xb537c22c9752a713542eae990d4863bc51bbc96102898d1ca85f31a9300bae75
C007  0x7824a7a23370eaa3ef6b3b646510725aeef1671f4ef33cc2c7065315bb494aca 0xeef1671f4ef33cc2c7065315bb494aca7824a7a23370eaa3ef6b3b646510725a
C008  0x613d99029c9d6bac5e20d73305c65ef81d871e1b0b980d39d19ca11a3fdbdf74 0x1d871e1b0b980d39d19ca11a3fdbdf74613d99029c9d6bac5e20d73305c65ef8
C009  0x022226fa57fe11c9cfecd6476c0b848427b19d8dba18f29721e522b686ea67bb 0x27b19d8dba18f29721e522b686ea67bb022226fa57fe11c9cfecd6476c0b8484
C00A  0x5b5e93f12eaf868f11acb6c58a01bc0508b2a7e7321078d45ba20f6b82384147 0x08b2a7e7321078d45ba20f6b823841475b5e93f12eaf868f11acb6c58a01bc05
C00B  0x27da0bbfdbccf6f12ab3cd36dbab7a5645513bcab652b4e2ca6d0a0ae54e0d7f 0x45513bcab652b4e2ca6d0a0ae54e0d7f27da0bbfdbccf6f12ab3cd36dbab7a56
C00C  0xff53812841fb4b80fafb9e1b473b79e7c712cff800b699f292f09f690f08f5c8 0xc712cff800b699f292f09f690f08f5c8ff53812841fb4b80fafb9e1b473b79e7
C00D  0x9764978dd0e11bb15f0177bd4e43f2b15e5ea83776dcfc8d08ffe5d06492e572 0x5e5ea83776dcfc8d08ffe5d06492e5729764978dd0e11bb15f0177bd4e43f2b1
C00E  0x76be7b9b333269fd2ecdc47c0e8f598ffd0e1ebfda9d2d02309ec12855495ea3 0xfd0e1ebfda9d2d02309ec12855495ea376be7b9b333269fd2ecdc47c0e8f598f
C00F  0x1f556809c9ef16283d81d9311d4f3c86f67759580f36f4c5cc82c89268bd5bcc 0xf67759580f36f4c5cc82c89268bd5bcc1f556809c9ef16283d81d9311d4f3c86
C010  0xcdff50ed3b7ba02ad469dc7ec6572cc3a8ae19292d06fb67513a2d25bd17b413 0xa8ae19292d06fb67513a2d25bd17b413cdff50ed3b7ba02ad469dc7ec6572cc3
C011  0xc8017841e540908a9cc6bfd808ecd40d574e16a8b19ebca0d498d3a8d16f92cc 0x574e16a8b19ebca0d498d3a8d16f92ccc8017841e540908a9cc6bfd808ecd40d
C012  0xe2ddb9e196c6b63a6d0bea9da51a9ff2e14013c810f42b8f00d8dd370c84e35f 0xe14013c810f42b8f00d8dd370c84e35fe2ddb9e196c6b63a6d0bea9da51a9ff2
C013  0xe854103e6b2f7b79827430ff9d5e3f29a5c2a636afbdafa8ac7f71a544984685 0xa5c2a636afbdafa8ac7f71a544984685e854103e6b2f7b79827430ff9d5e3f29
C014  0x5a4f9a6cb4a1fe712c51802a5aec0000d3faa2e6ad21b8d35a283a64fa57392d 0xd3faa2e6ad21b8d35a283a64fa57392d5a4f9a6cb4a1fe712c51802a5aec0000
C015  0x301be084186075db2273492b1b62517680c16da39c81c89e749b090d2bfa4689 0x80c16da39c81c89e749b090d2bfa4689301be084186075db2273492b1b625176
C016  0xb52e7cbce2bf4684f98372b390f91fa99668f5d60da68c27297e79cb6c052567 0x9668f5d60da68c27297e79cb6c052567b52e7cbce2bf4684f98372b390f91fa9
C017  0x00d8d56d07d355e8fef4d95e1b23744c4bd82089646d83f85541ea4d4c91f05b 0x4bd82089646d83f85541ea4d4c91f05b00d8d56d07d355e8fef4d95e1b23744c
C018  0x51a0a3bcf43eb5c0a4bd880f6cff2838d60ae379cc69dcc56b1cc1def74d1a88 0xd60ae379cc69dcc56b1cc1def74d1a8851a0a3bcf43eb5c0a4bd880f6cff2838
C019  0x7e500da59d04b2628d97d0c3b074deba32e3e8cd01c06fdfe4f053712739363f 0x32e3e8cd01c06fdfe4f053712739363f7e500da59d04b2628d97d0c3b074deba
C01A  0x58a6854bcd55fd9b5c89d631bef7180fd4d013acd223cee671d628d0497423c7 0xd4d013acd223cee671d628d0497423c758a6854bcd55fd9b5c89d631bef7180f
C01B  0xe40797688f9dee9b0ad7d101ad74adb31e776558cd7730dbf720371d0590a67d 0x1e776558cd7730dbf720371d0590a67de40797688f9dee9b0ad7d101ad74adb3
C01C  0x0d3d8c8c5967377422709c3f6a930fc5844065a1fcf3316bb3b6a9f178ea6f96 0x844065a1fcf3316bb3b6a9f178ea6f960d3d8c8c5967377422709c3f6a930fc5
C01D  0x5542fbe031ba8a1079353114190d9fcc59e27fad75b4db3c09ba389ce05c0216 0x59e27fad75b4db3c09ba389ce05c02165542fbe031ba8a1079353114190d9fcc
C01E  0xb506fc0fcc5e003fe9fbb78ba296bee90f974614bd088455a1cafcdcfac2ce9f 0x0f974614bd088455a1cafcdcfac2ce9fb506fc0fcc5e003fe9fbb78ba296bee9
C01F  0xc58b0c5435661755db8cdae76c521c9cb891be38f0b8625a8e72de69771e7b98 0xb891be38f0b8625a8e72de69771e7b98c58b0c5435661755db8cdae76c521c9c
C020  0x40dba6834bb699576b1e058238d414ab637255674bac6eccd1ea4a15b079f4ab 0x637255674bac6eccd1ea4a15b079f4ab40dba6834bb699576b1e058238d414ab
C021  0xcdb81e1e55ecff51a0073992ebf6ccf6215486856311f33c37eabb580ad8c332 0x215486856311f33c37eabb580ad8c332cdb81e1e55ecff51a0073992ebf6ccf6
C022  0xff714ac95a3d3535add50b694ea1e00bac3d79d9211d9661288599370f15ffff 0xac3d79d9211d9661288599370f15ffffff714ac95a3d3535add50b694ea1e00b
C023  0xdd881bc1c8b11ae2053b25c55dd8f884654b1c83000def619207bafae44390e5 0x654b1c83000def619207bafae44390e5dd881bc1c8b11ae2053b25c55dd8f884
C024  0x9ece7711991f5be304d95e2001b1c4aba03893bf94ac190558096be217feec8f 0xa03893bf94ac190558096be217feec8f9ece7711991f5be304d95e2001b1c4ab
C025  0xc48e1f08069b7b78b05109ee69a8f0c7479e59501d217c55c10718d5e63fc11f 0x479e59501d217c55c10718d5e63fc11fc48e1f08069b7b78b05109ee69a8f0c7
C026  0x7c92aecc8e3b8fb6bb8538d77754eae15b3bcf778849a98efc60c0f1bde2e871 0x5b3bcf778849a98efc60c0f1bde2e8717c92aecc8e3b8fb6bb8538d77754eae1
C027  0x962e1a127aabdb54323cf59197d1255d19bbb614e2945987e97c8dfab84bf33b 0x19bbb614e2945987e97c8dfab84bf33b962e1a127aabdb54323cf59197d1255d
C028  0xb4bfa7f0db86b29c627f72149ce036919ff2ba0cd4a8aeea7dfdeb8757172d20 0x9ff2ba0cd4a8aeea7dfdeb8757172d20b4bfa7f0db86b29c627f72149ce03691
C029  0x0cedb70e84a14b15ca72575f9462ec395d7b2b5948a83439af348839997b1069 0x5d7b2b5948a83439af348839997b10690cedb70e84a14b15ca72575f9462ec39
C02A  0x73f7ea2a2a602b7aabb2d2f9b21e748a4f6aa1889b00b2c5f298638e7da6c741 0x4f6aa1889b00b2c5f298638e7da6c74173f7ea2a2a602b7aabb2d2f9b21e748a
C02B  0xab9f40462f401fc462d35058a5aab5e6514c3a67b51be4cf5fc6e1ba84541da1 0x514c3a67b51be4cf5fc6e1ba84541da1ab9f40462f401fc462d35058a5aab5e6
C02C  0x7bfd6f9a5e18633df5e5f526f41f04afc183d2747122b14e4f2a5ad5def1a9e9 0xc183d2747122b14e4f2a5ad5def1a9e97bfd6f9a5e18633df5e5f526f41f04af
C02D  0xcc5e56c284307cc6082b02ce4e694d36d1a7d21f7f04aba75239a99a5794c4c1 0xd1a7d21f7f04aba75239a99a5794c4c1cc5e56c284307cc6082b02ce4e694d36
C02E  0x4f77c681fa679283e7dc754389a7fa3cbf8fdcc66decca548fd4425a4f3e53f5 0xbf8fdcc66decca548fd4425a4f3e53f54f77c681fa679283e7dc754389a7fa3c
C02F  0x6b1de34d11635cbfed7eee6247e25905b74a774b44c4979c0443a0fb7259b973 0xb74a774b44c4979c0443a0fb7259b9736b1de34d11635cbfed7eee6247e25905
C030  0x3cab3a75257c28315374e260ee16cea3bf6ff5317c1261e00fb0d14d9ece8caf 0xbf6ff5317c1261e00fb0d14d9ece8caf3cab3a75257c28315374e260ee16cea3
C031  0x2306b06f02fa9e2ab5f8961fde91240a7bdf2fd9cecb7bfb0f8f959146945856 0x7bdf2fd9cecb7bfb0f8f9591469458562306b06f02fa9e2ab5f8961fde91240a
C032  0x997e677a23b3466b9db61deb91e3b1b922bc3f2397f533191d1ae379c3fe3e93 0x22bc3f2397f533191d1ae379c3fe3e93997e677a23b3466b9db61deb91e3b1b9
C033  0x307dec797a6e18029c16807b3ceb1dedd029f58722ebf043d729cc562914d477 0xd029f58722ebf043d729cc562914d477307dec797a6e18029c16807b3ceb1ded
C034  0xa39f789e16a50e6412f4270388464dccee2987a4ca494e8d48129685b4f696fb 0xee2987a4ca494e8d48129685b4f696fba39f789e16a50e6412f4270388464dcc
C035  0x1f5d1277de3548cda2f12c663a596e3c064696f66e2776f640a190284ba0964c 0x064696f66e2776f640a190284ba0964c1f5d1277de3548cda2f12c663a596e3c
C036  0x4a9bf0db0e6562b4f27b41596636c82e7436a1ccb5c16630e4028f7442e45811 0x7436a1ccb5c16630e4028f7442e458114a9bf0db0e6562b4f27b41596636c82e
C037  0x1438814352f256534bca34eca89e43446f9bdb2b42957672a65a1058342aea40 0x6f9bdb2b42957672a65a1058342aea401438814352f256534bca34eca89e4344
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1863
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
hydra dx1: 0x12 (USB data +)
hydra dx2: 0x13 (USB data -)
hydra acc1: 0x40 (accessory id 1)
hydra acc2: 0x41 (accessory id 2)
hydra idx: 0x07 (identification bus)
hydra vdx: 0x1C (data line voltage detect)
hydra communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
hydra id: HYDRA rev B1
hydra reg 0x10 = 0x5B
hydra reg 0x11 = 0x80
hydra reg 0x12 = 0xA5
hydra reg 0x13 = 0xCA
hydra reg 0x14 = 0xEF
hydra reg 0x15 = 0x14
hydra reg 0x16 = 0x39
hydra reg 0x17 = 0x5E
hydra reg 0x18 = 0x83
hydra reg 0x19 = 0xA8
hydra reg 0x1A = 0xCD
hydra reg 0x1B = 0xF2
hydra reg 0x1C = 0x17
hydra reg 0x1D = 0x3C
hydra reg 0x1E = 0x61
hydra reg 0x1F = 0x86
hydra reg 0x20 = 0xAB
hydra reg 0x21 = 0xD0
hydra reg 0x22 = 0xF5
hydra reg 0x23 = 0x1A
hydra reg 0x24 = 0x3F
hydra reg 0x25 = 0x64
hydra reg 0x26 = 0x89
hydra reg 0x27 = 0xAE
hydra reg 0x28 = 0xD3
hydra reg 0x29 = 0xF8
hydra reg 0x2A = 0x1D
hydra reg 0x2B = 0x42
hydra reg 0x2C = 0x67
hydra reg 0x2D = 0x8C
hydra reg 0x2E = 0xB1
hydra reg 0x2F = 0xD6
hydra reg 0x30 = 0xFB
hydra reg 0x31 = 0x20
hydra reg 0x32 = 0x45
hydra reg 0x33 = 0x6A
hydra reg 0x34 = 0x8F
hydra reg 0x35 = 0xB4
hydra reg 0x36 = 0xD9
hydra reg 0x37 = 0xFE
hydra reg 0x38 = 0x23
hydra reg 0x39 = 0x48
hydra reg 0x3A = 0x6D
hydra reg 0x3B = 0x92
hydra reg 0x3C = 0xB7
hydra reg 0x3D = 0xDC
hydra reg 0x3E = 0x01
hydra reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 897.989 mV
buck1 voltage: 0.000 mV
buck2 voltage: 949.757 mV
buck3 voltage: 1808.451 mV
buck4 voltage: 1103.021 mV
buck5 voltage: 1061.082 mV
buck6 voltage: 1255.858 mV
buck7 voltage: 853.752 mV
buck8 voltage: 0.000 mV
buck9 voltage: 0.000 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 905.226 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1064.191 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1b
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  device answered at 0x72
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  device answered at 0x37
  device answered at 0x39
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 3
  device answered at 0x33
  device answered at 0x51
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 4
  device answered at 0x4c
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 5
  no device answered
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 6
  device answered at 0x36
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 7
  device answered at 0x40
  device answered at 0x41
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Toshiba
  capacity: 274 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01864
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x10000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 900.509 mV
ibuck0: 353.22 mA
vbuck1: 0.000 mV
vbuck2: 951.934 mV
vbuck5: 1064.953 mV
vldo8: 3008.845 mV
vldo9: 1811.300 mV
inand: 48.52 mA
vbuck3: 1812.817 mV
ibuck3: 95.16 mA
vbuck4: 1101.945 mV
vldo1: 2810.175 mV
vldo2: 3011.427 mV
vldo4: 1796.524 mV
vldo5: 3325.302 mV
vldo10: 2895.246 mV
vldo11: 1794.013 mV
vldo7: 3002.228 mV
vldo6: 2989.234 mV
vbuck6: 1250.136 mV
vbuck7: 845.298 mV
vbuck8: 0.000 mV
vbuck9: 0.000 mV
PMU built-in self test
BIST ldo7: 2979.344 mV
BIST ildo7: 3403.65 uA
BIST buck3: 1808.210 mV
BIST ldo6: 2997.898 mV
BIST ildo6: 818.74 uA
BIST buck0: 904.560 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
Chestnut ADC read all
chestnut vldo1 : 5718.213 mV
chestnut vldo2 : 5683.307 mV
chestnut vldo3 : 5119.472 mV
chestnut ildo1 : 12.59 mA
chestnut ildo2 : 11.72 mA
chestnut ildo3 : 6.36 mA
chestnut vneg : -5712.976 mV
chestnut ineg : 10.85 mA
chestnut vin : 3835.846 mV
chestnut ground : 2.000 mV
chestnut vboost : 5963.979 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5012.851 mV
tigris ibus : 410.11 mA
tigris vbat : 3827.519 mV
tigris ibat : 283.47 mA
tigris vdd : 3765.710 mV
tigris die_temp : 31.25 C
tigris vbus1 : 5013.341 mV
tigris vbus2 : 5019.864 mV
tigris vldo : 1812.271 mV
tigris vntc : 623.461 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN6CC1LL/A
Regn  LL/A
RMd#  A1864
MLB#  xxxxx®
BMac  E5:82:E8:E8:46:CC
WMac  16:10:E9:DA:D2:52
NvSn  5E28BB7347043259
Batt  F5DF2B6F3FD3791AE
LCM#  C117347043259F2B6F3
CLHS  0x00000001
Sku   0x82E8E846
Mode  0x00000000
C000  0x83f5731a14039804ba4cf593f144e89f420b237d6b067bf178df9b1c99ba92e9 0x420b237d6b067bf178df9b1c99ba92e983f5731a14039804ba4cf593f144e89f
C001  0x8053c997fc9990f98a26d25183f5a07a65c1b7374725a882ac559be3980c06c6 0x65c1b7374725a882ac559be3980c06c68053c997fc9990f98a26d25183f5a07a
C002  0xd3363d9ee9bb2daa2a4be0d7d463f9ca9e708244ee66f7a81849f886a63bb2e7 0x9e708244ee66f7a81849f886a63bb2e7d3363d9ee9bb2daa2a4be0d7d463f9ca
C003  0xc6fd988ca523417e861ce66196e911fdedc28725f8e0968e00f175b278392f4e 0xedc28725f8e0968e00f175b278392f4ec6fd988ca523417e861ce66196e911fd
C004  0x850261f5a93bc5a8e9cd02067aaef2ab45aaa1f0d457656ba2c086803ad77fb5 0x45aaa1f0d457656ba2c086803ad77fb5850261f5a93bc5a8e9cd02067aaef2ab
C005  0xc33af8c5615a9955d4d8f28f3a97749cab9ed6f6a9d6fd23b035ad7b4f2e99e1 0xab9ed6f6a9d6fd23b035ad7b4f2e99e1c33af8c5615a9955d4d8f28f3a97749c
C006  0x67a72f5d3f111b435487ce92cb7c2768f2fbb38bbd8b9bb99ebea8d5d2624380 0xf2fbb38bbd8b9bb99ebea8d5d262438067a72f5d3f111b435487ce92cb7c2768
C007  0x69562e50fa3fbc0524f755c183f9b423a66db5b00f456967347dc96a16378240 0xa66db5b00f456967347dc96a1637824069562e50fa3fbc0524f755c183f9b423
C008  0x61945b94ee4a5246f37b1a2698c997ef66e13df065630912cc4f6f0bd35f3b56 0x66e13df065630912cc4f6f0bd35f3b5661945b94ee4a5246f37b1a2698c997ef
C009  0xb30e8608644d5862a758107864ff1962841a240ce6e199f352a93100c803f3de 0x841a240ce6e199f352a93100c803f3deb30e8608644d5862a758107864ff1962
C00A  0x7290301374d0324a56dff0e5cb3a0a4f4c2093f2f953ce36cc8ed22091f240a8 0x4c2093f2f953ce36cc8ed22091f240a87290301374d0324a56dff0e5cb3a0a4f
C00B  0x6e25a5de93e7ddd66f086e868a9bb7464537228b38a12dae44d039acd080677f 0x4537228b38a12dae44d039acd080677f6e25a5de93e7ddd66f086e868a9bb746
C00C  0x997efde968e064181c0e8ae04a4346af5a81beb753d6a390092d03f7fe81ccb4 0x5a81beb753d6a390092d03f7fe81ccb4997efde968e064181c0e8ae04a4346af
C00D  0x81f31bf617b4cbc8717f6986d49ac7c8bddedae21508433aee45e13946e1ea26 0xbddedae21508433aee45e13946e1ea2681f31bf617b4cbc8717f6986d49ac7c8
C00E  0x476f870b911a0c5b354f46480d5a9f117fec39056665107b65e0b19ee6538ec7 0x7fec39056665107b65e0b19ee6538ec7476f870b911a0c5b354f46480d5a9f11
C00F  0x941c0a5247b0f31a5898df64a1ea5a1b10a28386cbe04f4a5d1bbf278081cd63 0x10a28386cbe04f4a5d1bbf278081cd63941c0a5247b0f31a5898df64a1ea5a1b
C010  0x8c89254ffed6399553c7420d2bac7a48367be5d986dc94e7087e76eadca51720 0x367be5d986dc94e7087e76eadca517208c89254ffed6399553c7420d2bac7a48
C011  0xa02c9e51eb736c7f22f25307507819e0e3ac8c782c6118d2390cdb2d8056d3c7 0xe3ac8c782c6118d2390cdb2d8056d3c7a02c9e51eb736c7f22f25307507819e0
C012  0x711956670ea6eb1c971b3f037b0146a694eccce640a59b2b5ae14330d7207935 0x94eccce640a59b2b5ae14330d7207935711956670ea6eb1c971b3f037b0146a6
C013  0xfbd6c8bfa9dfa93b449dee6cfc9e80df31d74d40683308101d005294899d1b7b 0x31d74d40683308101d005294899d1b7bfbd6c8bfa9dfa93b449dee6cfc9e80df
C014  0x3a1e228ae95c741ad8ffe2759c20ef9d0e28aaf77a1ec217437cfffdf5e07e2a 0x0e28aaf77a1ec217437cfffdf5e07e2a3a1e228ae95c741ad8ffe2759c20ef9d
C015  0x8d61506a6a974a8b59e14c00e82d64c51d8333bb0407fe3c29b65f6ddfceac94 0x1d8333bb0407fe3c29b65f6ddfceac948d61506a6a974a8b59e14c00e82d64c5
C016  0x468aa777551574e64dbfd1e63a891951338835b93e513888c18c8dabc465f560 0x338835b93e513888c18c8dabc465f560468aa777551574e64dbfd1e63a891951
C017  0xb6b48b6a5f63ae5eade3d3d5d740f673d117fe7345819cb608c2914c85d8a666 0xd117fe7345819cb608c2914c85d8a666b6b48b6a5f63ae5eade3d3d5d740f673
C018  0x6373cd6a1f701b39d4bf139c7b123352b6c4da0d39ff9d8d975684cf524ce112 0xb6c4da0d39ff9d8d975684cf524ce1126373cd6a1f701b39d4bf139c7b123352
C019  0x71bdcce66b79c703444d4b6d06d6e82fd8e5190c51c644be06ee79d6a7a750c9 0xd8e5190c51c644be06ee79d6a7a750c971bdcce66b79c703444d4b6d06d6e82f
C01A  0x032a9c70fbd2a66950c2a30b354bc6b0c939fbf7f631e7687dec818511b02e56 0xc939fbf7f631e7687dec818511b02e56032a9c70fbd2a66950c2a30b354bc6b0
C01B  0x670aad9647562cde2b1491feeb14f9d739d7887ec724b3afb984e7ea39f5c04a 0x39d7887ec724b3afb984e7ea39f5c04a670aad9647562cde2b1491feeb14f9d7
C01C  0x30e69e1db019a2934c6487dad89e74fc2838c32b77afcc8df11f7870556fe417 0x2838c32b77afcc8df11f7870556fe41730e69e1db019a2934c6487dad89e74fc
C01D  0xc3a4e6081717b4a1a1d59f22fd1d6cda1fdc3545ca9987fda6809d45865fddfe 0x1fdc3545ca9987fda6809d45865fddfec3a4e6081717b4a1a1d59f22fd1d6cda
C01E  0x10c2daa05577236b801e8cd44c1a1294f8725ff120bdf047d7cb052174b80a1e 0xf8725ff120bdf047d7cb052174b80a1e10c2daa05577236b801e8cd44c1a1294
C01F  0x330a6b381d17c69b04f5bcf27dd1e604586413dc28496cb050f052f54fa3bafe 0x586413dc28496cb050f052f54fa3bafe330a6b381d17c69b04f5bcf27dd1e604
C020  0x7e75e517b2f75ec611054fe87795e928f9accc135e6fb541fbd7b404b0559234 0xf9accc135e6fb541fbd7b404b05592347e75e517b2f75ec611054fe87795e928
C021  0xf3560c81912ee9d91bf8950cfb620d09a3c02805be346784231d34602a4ee7d9 0xa3c02805be346784231d34602a4ee7d9f3560c81912ee9d91bf8950cfb620d09
C022  0x7f7a7fd6338c9fe8af32a4ed3e17ceafcba51ac937ea60256536197a5aab24a9 0xcba51ac937ea60256536197a5aab24a97f7a7fd6338c9fe8af32a4ed3e17ceaf
C023  0x034e7a75317a7fd2efa47bb27b04d1decd1182d0e14568886d9cc9110b430b47 0xcd1182d0e14568886d9cc9110b430b47034e7a75317a7fd2efa47bb27b04d1de
C024  0xc76547e63d00d0c16a4d549dad443805813da0d826d54ddeafaccc28d299b52c 0x813da0d826d54ddeafaccc28d299b52cc76547e63d00d0c16a4d549dad443805
C025  0xabc5bc4ea70f509d9f1371d7a271814db9a3e8cb11722aaeefac0c316e6f18eb 0xb9a3e8cb11722aaeefac0c316e6f18ebabc5bc4ea70f509d9f1371d7a271814d
C026  0x5406bd48111e87da912276e6a13679acd854d93ba475fec146a61954994af1b2 0xd854d93ba475fec146a61954994af1b25406bd48111e87da912276e6a13679ac
C027  0xdaf7dc6d037be48f550109b41bb1cd989b055ee0911f108b72c66a0b8a4de81e 0x9b055ee0911f108b72c66a0b8a4de81edaf7dc6d037be48f550109b41bb1cd98
C028  0xc2f6b65dc616af18070f9c32b04db23b2b14b41ee58dd912d0432320a75b75dd 0x2b14b41ee58dd912d0432320a75b75ddc2f6b65dc616af18070f9c32b04db23b
C029  0x5fec9edd85972dcef0764e955e4018046e6c89dc33b4c0ad6f087c0b73004132 0x6e6c89dc33b4c0ad6f087c0b730041325fec9edd85972dcef0764e955e401804
C02A  0x40659883e20e801f9c19bed08ac4017175a4200cc1ab1ae9d5ed9f80aaf3a6ac 0x75a4200cc1ab1ae9d5ed9f80aaf3a6ac40659883e20e801f9c19bed08ac40171
C02B  0x744f116b3c0799736289c033e6efce82725a7d0b8c82e2f9d94f9fe066942560 0x725a7d0b8c82e2f9d94f9fe066942560744f116b3c0799736289c033e6efce82
C02C  0x5403f7dbe01736e938db23278f6365cf4fdb9f9fb5c96aa879866da2f6aad064 0x4fdb9f9fb5c96aa879866da2f6aad0645403f7dbe01736e938db23278f6365cf
C02D  0xa74addb74cb29a0df7e3d48855a96f1fd82337e20023a5d0f29ed84c8f8330f1 0xd82337e20023a5d0f29ed84c8f8330f1a74addb74cb29a0df7e3d48855a96f1f
C02E  0xaaa3e2a19cd06d63ecadd73955edaf636d957ecd4c5642813d9a48f13ee6b302 0x6d957ecd4c5642813d9a48f13ee6b302aaa3e2a19cd06d63ecadd73955edaf63
C02F  0x15b7609c7d72c6b0a2bc32b7ae7a7719aeaf16578eea50b80c3e8739d490f3b9 0xaeaf16578eea50b80c3e8739d490f3b915b7609c7d72c6b0a2bc32b7ae7a7719
C030  0xcebd1bb101bbb17ee6b46987ea01b27af3c267423c8c5ed218de4553c3a736ff 0xf3c267423c8c5ed218de4553c3a736ffcebd1bb101bbb17ee6b46987ea01b27a
C031  0xf66f10157adc09c2902516913b2a88e184fd707f4fe21592fe052544c467fb10 0x84fd707f4fe21592fe052544c467fb10f66f10157adc09c2902516913b2a88e1
C032  0x3a9ed30de5b88ae7324d52b6067a7b86f3cc0bc07128889deb0f205f070a85a4 0xf3cc0bc07128889deb0f205f070a85a43a9ed30de5b88ae7324d52b6067a7b86
C033  0x0dc14409baaa188728a46c05bc972a00a6fd4b2db53e044aebf12ac5e59d5018 0xa6fd4b2db53e044aebf12ac5e59d50180dc14409baaa188728a46c05bc972a00
C034  0x0192fb9f697cbb73a9725a7a707e6c17d353cc6b94cedd4abff2ebf99b04538e 0xd353cc6b94cedd4abff2ebf99b04538e0192fb9f697cbb73a9725a7a707e6c17
C035  0xac3b79535c107756d5f0be77abfccdad3d8dcecf18f006727986e3279076b4a9 0x3d8dcecf18f006727986e3279076b4a9ac3b79535c107756d5f0be77abfccdad
C036  0xd52c409a48a018334fe56d53e4e156ffe2994a167deb7e0fa52023ec2b05dd05 0xe2994a167deb7e0fa52023ec2b05dd05d52c409a48a018334fe56d53e4e156ff
C037  0xa05c09fafdc94bf4af79c160bc8a80adb62c6a591d70d1e34d1976e1cf6791cd 0xb62c6a591d70d1e34d1976e1cf6791cda05c09fafdc94bf4af79c160bc8a80ad
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1864
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
hydra dx1: 0x12 (USB data +)
hydra dx2: 0x13 (USB data -)
hydra acc1: 0x40 (accessory id 1)
hydra acc2: 0x41 (accessory id 2)
hydra idx: 0x07 (identification bus)
hydra vdx: 0x1C (data line voltage detect)
hydra communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
hydra id: HYDRA rev B1
hydra reg 0x10 = 0x5B
hydra reg 0x11 = 0x80
hydra reg 0x12 = 0xA5
hydra reg 0x13 = 0xCA
hydra reg 0x14 = 0xEF
hydra reg 0x15 = 0x14
hydra reg 0x16 = 0x39
hydra reg 0x17 = 0x5E
hydra reg 0x18 = 0x83
hydra reg 0x19 = 0xA8
hydra reg 0x1A = 0xCD
hydra reg 0x1B = 0xF2
hydra reg 0x1C = 0x17
hydra reg 0x1D = 0x3C
hydra reg 0x1E = 0x61
hydra reg 0x1F = 0x86
hydra reg 0x20 = 0xAB
hydra reg 0x21 = 0xD0
hydra reg 0x22 = 0xF5
hydra reg 0x23 = 0x1A
hydra reg 0x24 = 0x3F
hydra reg 0x25 = 0x64
hydra reg 0x26 = 0x89
hydra reg 0x27 = 0xAE
hydra reg 0x28 = 0xD3
hydra reg 0x29 = 0xF8
hydra reg 0x2A = 0x1D
hydra reg 0x2B = 0x42
hydra reg 0x2C = 0x67
hydra reg 0x2D = 0x8C
hydra reg 0x2E = 0xB1
hydra reg 0x2F = 0xD6
hydra reg 0x30 = 0xFB
hydra reg 0x31 = 0x20
hydra reg 0x32 = 0x45
hydra reg 0x33 = 0x6A
hydra reg 0x34 = 0x8F
hydra reg 0x35 = 0xB4
hydra reg 0x36 = 0xD9
hydra reg 0x37 = 0xFE
hydra reg 0x38 = 0x23
hydra reg 0x39 = 0x48
hydra reg 0x3A = 0x6D
hydra reg 0x3B = 0x92
hydra reg 0x3C = 0xB7
hydra reg 0x3D = 0xDC
hydra reg 0x3E = 0x01
hydra reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', '/q',
replace('
/q', char(10), char(13, 10)) || char(13) || replace('
Button count test ended
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'baseband --off',
replace('
baseband --off', char(10), char(13, 10)) || char(13) || replace('
Powering off baseband
baseband --off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'baseband --on',
replace('
baseband --on', char(10), char(13, 10)) || char(13) || replace('
Powering on baseband
BB_HSIC_RDY asserted
baseband --on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'battery --properties',
replace('
battery --properties', char(10), char(13, 10)) || char(13) || replace('
Voltage:                 3854 mV
Current:                 -285 mA
Temperature:             29.6 C
CycleCount:              212
DesignCapacity:          1960 mAh
FullChargeCapacity:      1788 mAh
RemainingCapacity:       1102 mAh
StateOfCharge:           61 %
Health:                  91 %
ChargerConnected:        No
Serial:                  F5D7211A2KGH5K1AE
Manufacturer:            SWD
ChemistryID:             0x1D91
GasGauge:                TI bq27546 fw 0x0700
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl --off',
replace('
bl --off', char(10), char(13, 10)) || char(13) || replace('
backlight off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -h',
replace('
bl -h', char(10), char(13, 10)) || char(13) || replace('
backlight level high
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -l',
replace('
bl -l', char(10), char(13, 10)) || char(13) || replace('
backlight level low
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -m',
replace('
bl -m', char(10), char(13, 10)) || char(13) || replace('
backlight level medium
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -n',
replace('
bl -n', char(10), char(13, 10)) || char(13) || replace('
backlight on, level 50%
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -p 50',
replace('
bl -p 50', char(10), char(13, 10)) || char(13) || replace('
backlight level 50
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bl -r',
replace('
bl -r', char(10), char(13, 10)) || char(13) || replace('
backlight level 0
backlight level 10
backlight level 20
backlight level 30
backlight level 40
backlight level 50
backlight level 60
backlight level 70
backlight level 80
backlight level 90
backlight level 100
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bluetooth --off',
replace('
bluetooth --off', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'bluetooth --on',
replace('
bluetooth --on', char(10), char(13, 10)) || char(13) || replace('
Bluetooth power on success
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'buck',
replace('
buck', char(10), char(13, 10)) || char(13) || replace('
buck0 voltage: 905.245 mV
buck1 voltage: 0.000 mV
buck2 voltage: 955.537 mV
buck3 voltage: 1801.122 mV
buck4 voltage: 1104.289 mV
buck5 voltage: 1065.238 mV
buck6 voltage: 1258.806 mV
buck7 voltage: 843.446 mV
buck8 voltage: 0.000 mV
buck9 voltage: 0.000 mV
buck10 voltage: 1792.391 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'buckcheck 1',
replace('
buckcheck 1', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck1 target 900 mV measured 898.012 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'buckcheck 5',
replace('
buckcheck 5', char(10), char(13, 10)) || char(13) || replace('
buckcheck starting, please wait
buck5 target 1060 mV measured 1063.252 mV PASS
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'BUTTONCNT --DQE',
replace('
BUTTONCNT --DQE', char(10), char(13, 10)) || char(13) || replace('
Button count test running, results on the device screen
Send /q to quit
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'Help',
replace('
Help', char(10), char(13, 10)) || char(13) || replace('
Available commands (type <command> --help for options):
  accel          diagnostics command accel: run, read or control the accel block of the board
  als            diagnostics command als: run, read or control the als block of the board
  audio          diagnostics command audio: run, read or control the audio block of the board
  baseband       diagnostics command baseband: run, read or control the baseband block of the board
  battery        diagnostics command battery: run, read or control the battery block of the board
  bl             diagnostics command bl: run, read or control the bl block of the board
  bluetooth      diagnostics command bluetooth: run, read or control the bluetooth block of the board
  buck           diagnostics command buck: run, read or control the buck block of the board
  buckcheck      diagnostics command buckcheck: run, read or control the buckcheck block of the board
  buttoncnt      diagnostics command buttoncnt: run, read or control the buttoncnt block of the board
  camisp         diagnostics command camisp: run, read or control the camisp block of the board
  charge         diagnostics command charge: run, read or control the charge block of the board
  compass        diagnostics command compass: run, read or control the compass block of the board
  consoleinit    diagnostics command consoleinit: run, read or control the consoleinit block of the board
  device         diagnostics command device: run, read or control the device block of the board
  diags          diagnostics command diags: run, read or control the diags block of the board
  display        diagnostics command display: run, read or control the display block of the board
  dock           diagnostics command dock: run, read or control the dock block of the board
  exit           diagnostics command exit: run, read or control the exit block of the board
  gps            diagnostics command gps: run, read or control the gps block of the board
  gyro           diagnostics command gyro: run, read or control the gyro block of the board
  help           diagnostics command help: run, read or control the help block of the board
  hydra          diagnostics command hydra: run, read or control the hydra block of the board
  i2c            diagnostics command i2c: run, read or control the i2c block of the board
  mic            diagnostics command mic: run, read or control the mic block of the board
  nand           diagnostics command nand: run, read or control the nand block of the board
  nandsize       diagnostics command nandsize: run, read or control the nandsize block of the board
  nanduid        diagnostics command nanduid: run, read or control the nanduid block of the board
  pmuadc         diagnostics command pmuadc: run, read or control the pmuadc block of the board
  pmureg         diagnostics command pmureg: run, read or control the pmureg block of the board
  prox           diagnostics command prox: run, read or control the prox block of the board
  reset          diagnostics command reset: run, read or control the reset block of the board
  rtc            diagnostics command rtc: run, read or control the rtc block of the board
  sensor         diagnostics command sensor: run, read or control the sensor block of the board
  shutdown       diagnostics command shutdown: run, read or control the shutdown block of the board
  smokey         diagnostics command smokey: run, read or control the smokey block of the board
  soc            diagnostics command soc: run, read or control the soc block of the board
  speaker        diagnostics command speaker: run, read or control the speaker block of the board
  syscfg         diagnostics command syscfg: run, read or control the syscfg block of the board
  temp           diagnostics command temp: run, read or control the temp block of the board
  testmemory     diagnostics command testmemory: run, read or control the testmemory block of the board
  touch          diagnostics command touch: run, read or control the touch block of the board
  tristar        diagnostics command tristar: run, read or control the tristar block of the board
  usb            diagnostics command usb: run, read or control the usb block of the board
  version        diagnostics command version: run, read or control the version block of the board
  vibrator       diagnostics command vibrator: run, read or control the vibrator block of the board
  wifi           diagnostics command wifi: run, read or control the wifi block of the board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 0',
replace('
i2c -s 0', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 0
  device answered at 0x1b
  device answered at 0x74
  device answered at 0x75
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 1',
replace('
i2c -s 1', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 1
  no device answered
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 2',
replace('
i2c -s 2', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 2
  no device answered
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 3',
replace('
i2c -s 3', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 3
  device answered at 0x33
  device answered at 0x51
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 4',
replace('
i2c -s 4', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 4
  device answered at 0x4c
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 5',
replace('
i2c -s 5', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 5
  device answered at 0x2a
  device answered at 0x4e
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 6',
replace('
i2c -s 6', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 6
  device answered at 0x36
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'i2c -s 7',
replace('
i2c -s 7', char(10), char(13, 10)) || char(13) || replace('
Scanning I2C bus 7
  device answered at 0x40
  device answered at 0x41
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'nand --getinfo',
replace('
nand --getinfo', char(10), char(13, 10)) || char(13) || replace('
NAND info
  vendor name: Hynix
  capacity: 274 GB
  channels: 2
  dies per channel: 2
  block size: 0x400000
  firmware: A01865
nand --getinfo Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'nandsize',
replace('
nandsize', char(10), char(13, 10)) || char(13) || replace('
nand size check Passed, size in KiB: 0x10000000
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'nanduid',
replace('
nanduid', char(10), char(13, 10)) || char(13) || replace('
NAND UID read Passed
UID: xxxxx®
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'pmuadc --read all',
replace('
pmuadc --read all', char(10), char(13, 10)) || char(13) || replace('
PMU ADC read all channels
channel          value
vbuck0: 893.462 mV
ibuck0: 349.83 mA
vbuck1: 0.000 mV
vbuck2: 948.645 mV
vbuck5: 1057.389 mV
vldo8: 2992.224 mV
vldo9: 1805.347 mV
inand: 48.49 mA
vbuck3: 1803.515 mV
ibuck3: 95.34 mA
vbuck4: 1107.736 mV
vldo1: 2809.726 mV
vldo2: 2985.610 mV
vldo4: 1806.289 mV
vldo5: 3308.063 mV
vldo10: 2889.744 mV
vldo11: 1811.328 mV
vldo7: 2992.718 mV
vldo6: 2991.208 mV
vbuck6: 1244.629 mV
vbuck7: 848.084 mV
vbuck8: 0.000 mV
vbuck9: 0.000 mV
vbuck10: 1806.920 mV
vldo12: 1794.727 mV
PMU built-in self test
BIST ldo7: 2983.586 mV
BIST ildo7: 3419.78 uA
BIST buck3: 1813.917 mV
BIST ldo6: 2979.561 mV
BIST ildo6: 825.80 uA
BIST buck0: 897.026 mV
BIST buck4: 1107.796 mV
BIST buck3_sw2: 1796.701 mV
Acorn ADC
acorn ground : 2.000 mV
acorn vin : 3858.036 mV
acorn vb : 4027.864 mV
acorn vp : 10022.552 mV
acorn vn : -6723.162 mV
acorn vh : 5230.776 mV
acorn vl : 1194.656 mV
acorn va : 3517.668 mV
acorn vc : 1108.164 mV
acorn die_temp : 33.50 C
acorn ia : 12.58 mA
acorn in : 8.69 mA
acorn ip : 15.31 mA
acorn ih : 4.38 mA
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'pmuadc --sel chestnut --read all',
replace('
pmuadc --sel chestnut --read all', char(10), char(13, 10)) || char(13) || replace('
pmuadc: sensor chestnut not found on this board
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'pmuadc --sel tigris --read all',
replace('
pmuadc --sel tigris --read all', char(10), char(13, 10)) || char(13) || replace('
Tigris ADC read all
tigris vbus : 5039.163 mV
tigris ibus : 415.52 mA
tigris vbat : 3867.909 mV
tigris ibat : 284.51 mA
tigris vdd : 3803.096 mV
tigris die_temp : 31.25 C
tigris vbus1 : 4988.175 mV
tigris vbus2 : 4992.529 mV
tigris vldo : 1786.629 mV
tigris vntc : 624.863 mV
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'Reset',
replace('
Reset', char(10), char(13, 10)) || char(13) || replace('
Resetting device...
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'syscfg list',
replace('
syscfg list', char(10), char(13, 10)) || char(13) || replace('
Key   Value
SrNm  xxxxx®
Mod#  MN5CA3LL/A
Regn  LL/A
RMd#  A1865
MLB#  xxxxx®
BMac  82:CD:D9:E0:35:CA
WMac  3B:88:A7:D1:F8:B3
NvSn  D2B5A091D0FE50AA
Batt  F5DFFC512DBAD2285
LCM#  C1191D0FE50AAFFC512
CLHS  0x00000001
Sku   0xCDD9E035
Mode  0x00000000
C000  0x65a48d4e73e3fdde01fee1138e5e2df8b77a849a9349224c53ff481f9e9e15b4 0xb77a849a9349224c53ff481f9e9e15b465a48d4e73e3fdde01fee1138e5e2df8
C001  0xf847cc0848204b1ca489a911c6b2c73cf143f86d3e1c0ebdf6a9e5e963108bd0 0xf143f86d3e1c0ebdf6a9e5e963108bd0f847cc0848204b1ca489a911c6b2c73c
C002  0x307a0efecafcf273d532de49303e40ff07124d7f13772f7f46ef4f928a710cee 0x07124d7f13772f7f46ef4f928a710cee307a0efecafcf273d532de49303e40ff
C003  0x9d43528d3053aa0c941632465574cbd458e4821c23590adc876d3dbbbd4361b7 0x58e4821c23590adc876d3dbbbd4361b79d43528d3053aa0c941632465574cbd4
C004  0xfdd4ea0e3ad3bff1644eec6c6b6cf1990b7e361e2cd9406261746264e155c916 0x0b7e361e2cd9406261746264e155c916fdd4ea0e3ad3bff1644eec6c6b6cf199
C005  0x4a12c5560a1439349b19ad3c8a6ed2c4f1bc231ca4d3c43b01ada6406dc25dc3 0xf1bc231ca4d3c43b01ada6406dc25dc34a12c5560a1439349b19ad3c8a6ed2c4
C006  0x90084fdfa3649728517156bfdcc7673a1335a5d09f890070b660a48d607239c8 0x1335a5d09f890070b660a48d607239c890084fdfa3649728517156bfdcc7673a
C007  0x664b629d10765e31b470beec0a3ad4830e6d50466fedb8d6903e6ed9b6c7d27a 0x0e6d50466fedb8d6903e6ed9b6c7d27a664b629d10765e31b470beec0a3ad483
C008  0x10419ae8cfa44f475d63c42612de37b86fb736a9d3a709e2cbe9ffebc23b01f4 0x6fb736a9d3a709e2cbe9ffebc23b01f410419ae8cfa44f475d63c42612de37b8
C009  0x35abb18ed3d9f1ee8a4ae2cce694a603887fcc89b5dc4db0653ba4f2896c38ac 0x887fcc89b5dc4db0653ba4f2896c38ac35abb18ed3d9f1ee8a4ae2cce694a603
C00A  0xb6c2fa8ae07f28528c968325999ed42986f6d2426efef08f4d48e4d44e265cfa 0x86f6d2426efef08f4d48e4d44e265cfab6c2fa8ae07f28528c968325999ed429
C00B  0xbe415067acc0ea33c8b0b9c7014406cfe24e0a03f4d185e28f32a8144a81946d 0xe24e0a03f4d185e28f32a8144a81946dbe415067acc0ea33c8b0b9c7014406cf
C00C  0xdbbcb19b2da0d1f8cd8b742afcf98a0b62bae61f98751c6f8e14f6947aaadb37 0x62bae61f98751c6f8e14f6947aaadb37dbbcb19b2da0d1f8cd8b742afcf98a0b
C00D  0x9f877a74b9693b53d2f520578cb87f5ec96ec75b69f8dc46693427b85a3f5a0e 0xc96ec75b69f8dc46693427b85a3f5a0e9f877a74b9693b53d2f520578cb87f5e
C00E  0x1f073066a7cb12bb09a4f0fe3090d9b72ee08c618176ca0ea0da5315e8279521 0x2ee08c618176ca0ea0da5315e82795211f073066a7cb12bb09a4f0fe3090d9b7
C00F  0x79762bc1b74edc3584f6567d3ca16c80856ea59c37607d932631bed21f231ab0 0x856ea59c37607d932631bed21f231ab079762bc1b74edc3584f6567d3ca16c80
C010  0xacca278df6b7d8e8ff6b3366b9ba321c5c1305fec76af47afdf712cca49cbd7e 0x5c1305fec76af47afdf712cca49cbd7eacca278df6b7d8e8ff6b3366b9ba321c
C011  0x437dcfefab5e914154ed5fc8a3c5e37d059a9c8e9b172c9ea1820a320657bf33 0x059a9c8e9b172c9ea1820a320657bf33437dcfefab5e914154ed5fc8a3c5e37d
C012  0xdbacd12eedaf073be21e8dd335a5c2d767259cd6a02c0e265fcc9adbd139010e 0x67259cd6a02c0e265fcc9adbd139010edbacd12eedaf073be21e8dd335a5c2d7
C013  0x990eea9703398c4ed773349bb64fe9f59c3c5398dd68aaee3c2d72f0914a5985 0x9c3c5398dd68aaee3c2d72f0914a5985990eea9703398c4ed773349bb64fe9f5
C014  0x260dfbe962829eccfccad13f45f5509b4c4e1a24a22038db14afad61de4db22a 0x4c4e1a24a22038db14afad61de4db22a260dfbe962829eccfccad13f45f5509b
C015  0x9bd9cb91567686528cb5a30607d07de2278f6fe4ab106a6ff23897bbaaa89c5a 0x278f6fe4ab106a6ff23897bbaaa89c5a9bd9cb91567686528cb5a30607d07de2
C016  0xc1a77e03550e845a5031de38c6869d408b8d9ef6d937693bd3153d3cc5bb3fac 0x8b8d9ef6d937693bd3153d3cc5bb3facc1a77e03550e845a5031de38c6869d40
C017  0xa85ed6994cae20acfb9185613bf80ea984ab9db6bec3b12dad5d6ca8c0ea0dae 0x84ab9db6bec3b12dad5d6ca8c0ea0daea85ed6994cae20acfb9185613bf80ea9
C018  0xb0f9678b43dc01b6ed168884a0aab7b26ebf0230daaf4530dc2294740d5eb8ba 0x6ebf0230daaf4530dc2294740d5eb8bab0f9678b43dc01b6ed168884a0aab7b2
C019  0xe3861f54be2806bf94a792eeecd64c76b857960230fcea0207a6e4b8001dd137 0xb857960230fcea0207a6e4b8001dd137e3861f54be2806bf94a792eeecd64c76
C01A  0x961cc3b267eccbd1ba281e034c02ce8667a58386b55e69bcfba1a340399ce85d 0x67a58386b55e69bcfba1a340399ce85d961cc3b267eccbd1ba281e034c02ce86
C01B  0x772d3c6ad580c84376522e0d08c20f4382f7b979da2d0b4c3b6f70dc0bc4e4b8 0x82f7b979da2d0b4c3b6f70dc0bc4e4b8772d3c6ad580c84376522e0d08c20f43
C01C  0xef3227aa6b9e74ed77754af9c85f7a4abc5f771ca1b7ac34e340ab9b9b178e1d 0xbc5f771ca1b7ac34e340ab9b9b178e1def3227aa6b9e74ed77754af9c85f7a4a
C01D  0x388c445640760e468e94953b21c2180b140f10619ee711c282ed756c3f5fe24a 0x140f10619ee711c282ed756c3f5fe24a388c445640760e468e94953b21c2180b
C01E  0x8946e6017a392ff901c68ee73fd51939b257a370a3136f1b06ff19f7887c6688 0xb257a370a3136f1b06ff19f7887c66888946e6017a392ff901c68ee73fd51939
C01F  0x1b9375251ae1c62aeb86e34d37c3f25b8407bbec3a9c1d0cc8c261f27e9c5fec 0x8407bbec3a9c1d0cc8c261f27e9c5fec1b9375251ae1c62aeb86e34d37c3f25b
C020  0xbfd08ff522ed212888a00306c05e900e7a7118304dbc0bba37068e7372cb331b 0x7a7118304dbc0bba37068e7372cb331bbfd08ff522ed212888a00306c05e900e
C021  0x6b0c23515b22ebb4d6ab0adb3a0477aed391a726fd855b0671efc53490016425 0xd391a726fd855b0671efc534900164256b0c23515b22ebb4d6ab0adb3a0477ae
C022  0x3afc06065105e99f69911d9dcfad26b08c65170877bf5832db0b13841c94436c 0x8c65170877bf5832db0b13841c94436c3afc06065105e99f69911d9dcfad26b0
C023  0x9117af410dc7a49ab02145f9496d2a2ce1ab40fca0b70f7c79f7404162f43fcb 0xe1ab40fca0b70f7c79f7404162f43fcb9117af410dc7a49ab02145f9496d2a2c
C024  0xbdff153b6b7b1c86aafb472aca3d03da3af349e09bfe1e602801ffd0a0f42ec5 0x3af349e09bfe1e602801ffd0a0f42ec5bdff153b6b7b1c86aafb472aca3d03da
C025  0x25d2a04cca93f6a167a2ab717f3b9cf0f2d7b10187078f467adaebd20cd023b0 0xf2d7b10187078f467adaebd20cd023b025d2a04cca93f6a167a2ab717f3b9cf0
C026  0x39b057892a0c3410cb672a71e4c05ba6f8d9a0010174f1461c9f0e6c6d0de0cd 0xf8d9a0010174f1461c9f0e6c6d0de0cd39b057892a0c3410cb672a71e4c05ba6
C027  0x1ff7be24d8623642b2948e5734e533df8b48166d3199b87c88ed31bc73d574cf 0x8b48166d3199b87c88ed31bc73d574cf1ff7be24d8623642b2948e5734e533df
C028  0x99db3a146c7559a57c5707dcd605e3982cfa52e2fe3e59c839c3d9a72ea85183 0x2cfa52e2fe3e59c839c3d9a72ea8518399db3a146c7559a57c5707dcd605e398
C029  0xd681bab66e4cd9d8028dbe519bcb00416add262b05d58bf45e548750f1cdd49b 0x6add262b05d58bf45e548750f1cdd49bd681bab66e4cd9d8028dbe519bcb0041
C02A  0x89f016dd1d1a02adacc409dd12dd11a14d6804ae74d6dfbc0ff090f8475310c5 0x4d6804ae74d6dfbc0ff090f8475310c589f016dd1d1a02adacc409dd12dd11a1
C02B  0xa7e58b11f817442610d7d3e3195b6bcc59503e918d43fd05f89cb821a95a7496 0x59503e918d43fd05f89cb821a95a7496a7e58b11f817442610d7d3e3195b6bcc
C02C  0x95afa7244c5accb0e3074218e3bab9d326476b8b1b203e6b31caff587304f7c4 0x26476b8b1b203e6b31caff587304f7c495afa7244c5accb0e3074218e3bab9d3
C02D  0x69785b0f9d136420fe1a26f1767a4decba1d134dfaf6631c19cb3df96f83bd1f 0xba1d134dfaf6631c19cb3df96f83bd1f69785b0f9d136420fe1a26f1767a4dec
C02E  0x0adbbaf3ee371edc27098eb99faf771faceb4293b838a52c70e9156a92587ec6 0xaceb4293b838a52c70e9156a92587ec60adbbaf3ee371edc27098eb99faf771f
C02F  0xa1923bb85aa98941ddc05bfeecb31fe4bc545c87e85f87ad2125cca8606e8b3c 0xbc545c87e85f87ad2125cca8606e8b3ca1923bb85aa98941ddc05bfeecb31fe4
C030  0xf9de4978590c5de674fa6bca454960b25da596a7485dc509bc20df8573b3c307 0x5da596a7485dc509bc20df8573b3c307f9de4978590c5de674fa6bca454960b2
C031  0x3657051f3e1c0b959868eb5ebbf1aabf3f68675ac70f3a84398e8652fdf71fde 0x3f68675ac70f3a84398e8652fdf71fde3657051f3e1c0b959868eb5ebbf1aabf
C032  0x50476106525dda50cb098e75852a93b18cc298d7ff927529e41f67bfbe822e99 0x8cc298d7ff927529e41f67bfbe822e9950476106525dda50cb098e75852a93b1
C033  0xa6a86870ee7438523206b808b158b0e4af483f8e395db1ac6605134951c8ec67 0xaf483f8e395db1ac6605134951c8ec67a6a86870ee7438523206b808b158b0e4
C034  0x261682342991fb3dd725c80f059be6a0dacf3d3ce4347c3da1974d8e320edea8 0xdacf3d3ce4347c3da1974d8e320edea8261682342991fb3dd725c80f059be6a0
C035  0x0b4d5c48c411056e56027abfa51b1c29892ecb35852c3dcedd7f5add99e7951f 0x892ecb35852c3dcedd7f5add99e7951f0b4d5c48c411056e56027abfa51b1c29
C036  0x58b122c11b552a4ffb5880097c1bc09e5df880c95af11129f7dde2752d78bcf6 0x5df880c95af11129f7dde2752d78bcf658b122c11b552a4ffb5880097c1bc09e
C037  0xbc5777c31c4793a1548ce3a44e0cc7f6b8a2a2cf10f422004303b6626538ce0c 0xb8a2a2cf10f422004303b6626538ce0cbc5777c31c4793a1548ce3a44e0cc7f6
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'syscfg print RMd#',
replace('
syscfg print RMd#', char(10), char(13, 10)) || char(13) || replace('
A1865
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'testmemory',
replace('
testmemory', char(10), char(13, 10)) || char(13) || replace('
memory test walking-1    Passed
memory test walking-0    Passed
memory test checkerboard Passed
memory test address      Passed
memory test random       Passed
testmemory: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'TESTMEMORY --1MB',
replace('
TESTMEMORY --1MB', char(10), char(13, 10)) || char(13) || replace('
testmemory 1MB read/write, 256 blocks of 4 KiB
block   0 addr 0x800000000 pattern 0x55555555 write ok read ok
block   0 addr 0x800000000 pattern 0xAAAAAAAA write ok read ok
block   1 addr 0x800001000 pattern 0x55555555 write ok read ok
block   1 addr 0x800001000 pattern 0xAAAAAAAA write ok read ok
block   2 addr 0x800002000 pattern 0x55555555 write ok read ok
block   2 addr 0x800002000 pattern 0xAAAAAAAA write ok read ok
block   3 addr 0x800003000 pattern 0x55555555 write ok read ok
block   3 addr 0x800003000 pattern 0xAAAAAAAA write ok read ok
block   4 addr 0x800004000 pattern 0x55555555 write ok read ok
block   4 addr 0x800004000 pattern 0xAAAAAAAA write ok read ok
block   5 addr 0x800005000 pattern 0x55555555 write ok read ok
block   5 addr 0x800005000 pattern 0xAAAAAAAA write ok read ok
block   6 addr 0x800006000 pattern 0x55555555 write ok read ok
block   6 addr 0x800006000 pattern 0xAAAAAAAA write ok read ok
block   7 addr 0x800007000 pattern 0x55555555 write ok read ok
block   7 addr 0x800007000 pattern 0xAAAAAAAA write ok read ok
block   8 addr 0x800008000 pattern 0x55555555 write ok read ok
block   8 addr 0x800008000 pattern 0xAAAAAAAA write ok read ok
block   9 addr 0x800009000 pattern 0x55555555 write ok read ok
block   9 addr 0x800009000 pattern 0xAAAAAAAA write ok read ok
block  10 addr 0x80000A000 pattern 0x55555555 write ok read ok
block  10 addr 0x80000A000 pattern 0xAAAAAAAA write ok read ok
block  11 addr 0x80000B000 pattern 0x55555555 write ok read ok
block  11 addr 0x80000B000 pattern 0xAAAAAAAA write ok read ok
block  12 addr 0x80000C000 pattern 0x55555555 write ok read ok
block  12 addr 0x80000C000 pattern 0xAAAAAAAA write ok read ok
block  13 addr 0x80000D000 pattern 0x55555555 write ok read ok
block  13 addr 0x80000D000 pattern 0xAAAAAAAA write ok read ok
block  14 addr 0x80000E000 pattern 0x55555555 write ok read ok
block  14 addr 0x80000E000 pattern 0xAAAAAAAA write ok read ok
block  15 addr 0x80000F000 pattern 0x55555555 write ok read ok
block  15 addr 0x80000F000 pattern 0xAAAAAAAA write ok read ok
block  16 addr 0x800010000 pattern 0x55555555 write ok read ok
block  16 addr 0x800010000 pattern 0xAAAAAAAA write ok read ok
block  17 addr 0x800011000 pattern 0x55555555 write ok read ok
block  17 addr 0x800011000 pattern 0xAAAAAAAA write ok read ok
block  18 addr 0x800012000 pattern 0x55555555 write ok read ok
block  18 addr 0x800012000 pattern 0xAAAAAAAA write ok read ok
block  19 addr 0x800013000 pattern 0x55555555 write ok read ok
block  19 addr 0x800013000 pattern 0xAAAAAAAA write ok read ok
block  20 addr 0x800014000 pattern 0x55555555 write ok read ok
block  20 addr 0x800014000 pattern 0xAAAAAAAA write ok read ok
block  21 addr 0x800015000 pattern 0x55555555 write ok read ok
block  21 addr 0x800015000 pattern 0xAAAAAAAA write ok read ok
block  22 addr 0x800016000 pattern 0x55555555 write ok read ok
block  22 addr 0x800016000 pattern 0xAAAAAAAA write ok read ok
block  23 addr 0x800017000 pattern 0x55555555 write ok read ok
block  23 addr 0x800017000 pattern 0xAAAAAAAA write ok read ok
block  24 addr 0x800018000 pattern 0x55555555 write ok read ok
block  24 addr 0x800018000 pattern 0xAAAAAAAA write ok read ok
block  25 addr 0x800019000 pattern 0x55555555 write ok read ok
block  25 addr 0x800019000 pattern 0xAAAAAAAA write ok read ok
block  26 addr 0x80001A000 pattern 0x55555555 write ok read ok
block  26 addr 0x80001A000 pattern 0xAAAAAAAA write ok read ok
block  27 addr 0x80001B000 pattern 0x55555555 write ok read ok
block  27 addr 0x80001B000 pattern 0xAAAAAAAA write ok read ok
block  28 addr 0x80001C000 pattern 0x55555555 write ok read ok
block  28 addr 0x80001C000 pattern 0xAAAAAAAA write ok read ok
block  29 addr 0x80001D000 pattern 0x55555555 write ok read ok
block  29 addr 0x80001D000 pattern 0xAAAAAAAA write ok read ok
block  30 addr 0x80001E000 pattern 0x55555555 write ok read ok
block  30 addr 0x80001E000 pattern 0xAAAAAAAA write ok read ok
block  31 addr 0x80001F000 pattern 0x55555555 write ok read ok
block  31 addr 0x80001F000 pattern 0xAAAAAAAA write ok read ok
block  32 addr 0x800020000 pattern 0x55555555 write ok read ok
block  32 addr 0x800020000 pattern 0xAAAAAAAA write ok read ok
block  33 addr 0x800021000 pattern 0x55555555 write ok read ok
block  33 addr 0x800021000 pattern 0xAAAAAAAA write ok read ok
block  34 addr 0x800022000 pattern 0x55555555 write ok read ok
block  34 addr 0x800022000 pattern 0xAAAAAAAA write ok read ok
block  35 addr 0x800023000 pattern 0x55555555 write ok read ok
block  35 addr 0x800023000 pattern 0xAAAAAAAA write ok read ok
block  36 addr 0x800024000 pattern 0x55555555 write ok read ok
block  36 addr 0x800024000 pattern 0xAAAAAAAA write ok read ok
block  37 addr 0x800025000 pattern 0x55555555 write ok read ok
block  37 addr 0x800025000 pattern 0xAAAAAAAA write ok read ok
block  38 addr 0x800026000 pattern 0x55555555 write ok read ok
block  38 addr 0x800026000 pattern 0xAAAAAAAA write ok read ok
block  39 addr 0x800027000 pattern 0x55555555 write ok read ok
block  39 addr 0x800027000 pattern 0xAAAAAAAA write ok read ok
block  40 addr 0x800028000 pattern 0x55555555 write ok read ok
block  40 addr 0x800028000 pattern 0xAAAAAAAA write ok read ok
block  41 addr 0x800029000 pattern 0x55555555 write ok read ok
block  41 addr 0x800029000 pattern 0xAAAAAAAA write ok read ok
block  42 addr 0x80002A000 pattern 0x55555555 write ok read ok
block  42 addr 0x80002A000 pattern 0xAAAAAAAA write ok read ok
block  43 addr 0x80002B000 pattern 0x55555555 write ok read ok
block  43 addr 0x80002B000 pattern 0xAAAAAAAA write ok read ok
block  44 addr 0x80002C000 pattern 0x55555555 write ok read ok
block  44 addr 0x80002C000 pattern 0xAAAAAAAA write ok read ok
block  45 addr 0x80002D000 pattern 0x55555555 write ok read ok
block  45 addr 0x80002D000 pattern 0xAAAAAAAA write ok read ok
block  46 addr 0x80002E000 pattern 0x55555555 write ok read ok
block  46 addr 0x80002E000 pattern 0xAAAAAAAA write ok read ok
block  47 addr 0x80002F000 pattern 0x55555555 write ok read ok
block  47 addr 0x80002F000 pattern 0xAAAAAAAA write ok read ok
block  48 addr 0x800030000 pattern 0x55555555 write ok read ok
block  48 addr 0x800030000 pattern 0xAAAAAAAA write ok read ok
block  49 addr 0x800031000 pattern 0x55555555 write ok read ok
block  49 addr 0x800031000 pattern 0xAAAAAAAA write ok read ok
block  50 addr 0x800032000 pattern 0x55555555 write ok read ok
block  50 addr 0x800032000 pattern 0xAAAAAAAA write ok read ok
block  51 addr 0x800033000 pattern 0x55555555 write ok read ok
block  51 addr 0x800033000 pattern 0xAAAAAAAA write ok read ok
block  52 addr 0x800034000 pattern 0x55555555 write ok read ok
block  52 addr 0x800034000 pattern 0xAAAAAAAA write ok read ok
block  53 addr 0x800035000 pattern 0x55555555 write ok read ok
block  53 addr 0x800035000 pattern 0xAAAAAAAA write ok read ok
block  54 addr 0x800036000 pattern 0x55555555 write ok read ok
block  54 addr 0x800036000 pattern 0xAAAAAAAA write ok read ok
block  55 addr 0x800037000 pattern 0x55555555 write ok read ok
block  55 addr 0x800037000 pattern 0xAAAAAAAA write ok read ok
block  56 addr 0x800038000 pattern 0x55555555 write ok read ok
block  56 addr 0x800038000 pattern 0xAAAAAAAA write ok read ok
block  57 addr 0x800039000 pattern 0x55555555 write ok read ok
block  57 addr 0x800039000 pattern 0xAAAAAAAA write ok read ok
block  58 addr 0x80003A000 pattern 0x55555555 write ok read ok
block  58 addr 0x80003A000 pattern 0xAAAAAAAA write ok read ok
block  59 addr 0x80003B000 pattern 0x55555555 write ok read ok
block  59 addr 0x80003B000 pattern 0xAAAAAAAA write ok read ok
block  60 addr 0x80003C000 pattern 0x55555555 write ok read ok
block  60 addr 0x80003C000 pattern 0xAAAAAAAA write ok read ok
block  61 addr 0x80003D000 pattern 0x55555555 write ok read ok
block  61 addr 0x80003D000 pattern 0xAAAAAAAA write ok read ok
block  62 addr 0x80003E000 pattern 0x55555555 write ok read ok
block  62 addr 0x80003E000 pattern 0xAAAAAAAA write ok read ok
block  63 addr 0x80003F000 pattern 0x55555555 write ok read ok
block  63 addr 0x80003F000 pattern 0xAAAAAAAA write ok read ok
block  64 addr 0x800040000 pattern 0x55555555 write ok read ok
block  64 addr 0x800040000 pattern 0xAAAAAAAA write ok read ok
block  65 addr 0x800041000 pattern 0x55555555 write ok read ok
block  65 addr 0x800041000 pattern 0xAAAAAAAA write ok read ok
block  66 addr 0x800042000 pattern 0x55555555 write ok read ok
block  66 addr 0x800042000 pattern 0xAAAAAAAA write ok read ok
block  67 addr 0x800043000 pattern 0x55555555 write ok read ok
block  67 addr 0x800043000 pattern 0xAAAAAAAA write ok read ok
block  68 addr 0x800044000 pattern 0x55555555 write ok read ok
block  68 addr 0x800044000 pattern 0xAAAAAAAA write ok read ok
block  69 addr 0x800045000 pattern 0x55555555 write ok read ok
block  69 addr 0x800045000 pattern 0xAAAAAAAA write ok read ok
block  70 addr 0x800046000 pattern 0x55555555 write ok read ok
block  70 addr 0x800046000 pattern 0xAAAAAAAA write ok read ok
block  71 addr 0x800047000 pattern 0x55555555 write ok read ok
block  71 addr 0x800047000 pattern 0xAAAAAAAA write ok read ok
block  72 addr 0x800048000 pattern 0x55555555 write ok read ok
block  72 addr 0x800048000 pattern 0xAAAAAAAA write ok read ok
block  73 addr 0x800049000 pattern 0x55555555 write ok read ok
block  73 addr 0x800049000 pattern 0xAAAAAAAA write ok read ok
block  74 addr 0x80004A000 pattern 0x55555555 write ok read ok
block  74 addr 0x80004A000 pattern 0xAAAAAAAA write ok read ok
block  75 addr 0x80004B000 pattern 0x55555555 write ok read ok
block  75 addr 0x80004B000 pattern 0xAAAAAAAA write ok read ok
block  76 addr 0x80004C000 pattern 0x55555555 write ok read ok
block  76 addr 0x80004C000 pattern 0xAAAAAAAA write ok read ok
block  77 addr 0x80004D000 pattern 0x55555555 write ok read ok
block  77 addr 0x80004D000 pattern 0xAAAAAAAA write ok read ok
block  78 addr 0x80004E000 pattern 0x55555555 write ok read ok
block  78 addr 0x80004E000 pattern 0xAAAAAAAA write ok read ok
block  79 addr 0x80004F000 pattern 0x55555555 write ok read ok
block  79 addr 0x80004F000 pattern 0xAAAAAAAA write ok read ok
block  80 addr 0x800050000 pattern 0x55555555 write ok read ok
block  80 addr 0x800050000 pattern 0xAAAAAAAA write ok read ok
block  81 addr 0x800051000 pattern 0x55555555 write ok read ok
block  81 addr 0x800051000 pattern 0xAAAAAAAA write ok read ok
block  82 addr 0x800052000 pattern 0x55555555 write ok read ok
block  82 addr 0x800052000 pattern 0xAAAAAAAA write ok read ok
block  83 addr 0x800053000 pattern 0x55555555 write ok read ok
block  83 addr 0x800053000 pattern 0xAAAAAAAA write ok read ok
block  84 addr 0x800054000 pattern 0x55555555 write ok read ok
block  84 addr 0x800054000 pattern 0xAAAAAAAA write ok read ok
block  85 addr 0x800055000 pattern 0x55555555 write ok read ok
block  85 addr 0x800055000 pattern 0xAAAAAAAA write ok read ok
block  86 addr 0x800056000 pattern 0x55555555 write ok read ok
block  86 addr 0x800056000 pattern 0xAAAAAAAA write ok read ok
block  87 addr 0x800057000 pattern 0x55555555 write ok read ok
block  87 addr 0x800057000 pattern 0xAAAAAAAA write ok read ok
block  88 addr 0x800058000 pattern 0x55555555 write ok read ok
block  88 addr 0x800058000 pattern 0xAAAAAAAA write ok read ok
block  89 addr 0x800059000 pattern 0x55555555 write ok read ok
block  89 addr 0x800059000 pattern 0xAAAAAAAA write ok read ok
block  90 addr 0x80005A000 pattern 0x55555555 write ok read ok
block  90 addr 0x80005A000 pattern 0xAAAAAAAA write ok read ok
block  91 addr 0x80005B000 pattern 0x55555555 write ok read ok
block  91 addr 0x80005B000 pattern 0xAAAAAAAA write ok read ok
block  92 addr 0x80005C000 pattern 0x55555555 write ok read ok
block  92 addr 0x80005C000 pattern 0xAAAAAAAA write ok read ok
block  93 addr 0x80005D000 pattern 0x55555555 write ok read ok
block  93 addr 0x80005D000 pattern 0xAAAAAAAA write ok read ok
block  94 addr 0x80005E000 pattern 0x55555555 write ok read ok
block  94 addr 0x80005E000 pattern 0xAAAAAAAA write ok read ok
block  95 addr 0x80005F000 pattern 0x55555555 write ok read ok
block  95 addr 0x80005F000 pattern 0xAAAAAAAA write ok read ok
block  96 addr 0x800060000 pattern 0x55555555 write ok read ok
block  96 addr 0x800060000 pattern 0xAAAAAAAA write ok read ok
block  97 addr 0x800061000 pattern 0x55555555 write ok read ok
block  97 addr 0x800061000 pattern 0xAAAAAAAA write ok read ok
block  98 addr 0x800062000 pattern 0x55555555 write ok read ok
block  98 addr 0x800062000 pattern 0xAAAAAAAA write ok read ok
block  99 addr 0x800063000 pattern 0x55555555 write ok read ok
block  99 addr 0x800063000 pattern 0xAAAAAAAA write ok read ok
block 100 addr 0x800064000 pattern 0x55555555 write ok read ok
block 100 addr 0x800064000 pattern 0xAAAAAAAA write ok read ok
block 101 addr 0x800065000 pattern 0x55555555 write ok read ok
block 101 addr 0x800065000 pattern 0xAAAAAAAA write ok read ok
block 102 addr 0x800066000 pattern 0x55555555 write ok read ok
block 102 addr 0x800066000 pattern 0xAAAAAAAA write ok read ok
block 103 addr 0x800067000 pattern 0x55555555 write ok read ok
block 103 addr 0x800067000 pattern 0xAAAAAAAA write ok read ok
block 104 addr 0x800068000 pattern 0x55555555 write ok read ok
block 104 addr 0x800068000 pattern 0xAAAAAAAA write ok read ok
block 105 addr 0x800069000 pattern 0x55555555 write ok read ok
block 105 addr 0x800069000 pattern 0xAAAAAAAA write ok read ok
block 106 addr 0x80006A000 pattern 0x55555555 write ok read ok
block 106 addr 0x80006A000 pattern 0xAAAAAAAA write ok read ok
block 107 addr 0x80006B000 pattern 0x55555555 write ok read ok
block 107 addr 0x80006B000 pattern 0xAAAAAAAA write ok read ok
block 108 addr 0x80006C000 pattern 0x55555555 write ok read ok
block 108 addr 0x80006C000 pattern 0xAAAAAAAA write ok read ok
block 109 addr 0x80006D000 pattern 0x55555555 write ok read ok
block 109 addr 0x80006D000 pattern 0xAAAAAAAA write ok read ok
block 110 addr 0x80006E000 pattern 0x55555555 write ok read ok
block 110 addr 0x80006E000 pattern 0xAAAAAAAA write ok read ok
block 111 addr 0x80006F000 pattern 0x55555555 write ok read ok
block 111 addr 0x80006F000 pattern 0xAAAAAAAA write ok read ok
block 112 addr 0x800070000 pattern 0x55555555 write ok read ok
block 112 addr 0x800070000 pattern 0xAAAAAAAA write ok read ok
block 113 addr 0x800071000 pattern 0x55555555 write ok read ok
block 113 addr 0x800071000 pattern 0xAAAAAAAA write ok read ok
block 114 addr 0x800072000 pattern 0x55555555 write ok read ok
block 114 addr 0x800072000 pattern 0xAAAAAAAA write ok read ok
block 115 addr 0x800073000 pattern 0x55555555 write ok read ok
block 115 addr 0x800073000 pattern 0xAAAAAAAA write ok read ok
block 116 addr 0x800074000 pattern 0x55555555 write ok read ok
block 116 addr 0x800074000 pattern 0xAAAAAAAA write ok read ok
block 117 addr 0x800075000 pattern 0x55555555 write ok read ok
block 117 addr 0x800075000 pattern 0xAAAAAAAA write ok read ok
block 118 addr 0x800076000 pattern 0x55555555 write ok read ok
block 118 addr 0x800076000 pattern 0xAAAAAAAA write ok read ok
block 119 addr 0x800077000 pattern 0x55555555 write ok read ok
block 119 addr 0x800077000 pattern 0xAAAAAAAA write ok read ok
block 120 addr 0x800078000 pattern 0x55555555 write ok read ok
block 120 addr 0x800078000 pattern 0xAAAAAAAA write ok read ok
block 121 addr 0x800079000 pattern 0x55555555 write ok read ok
block 121 addr 0x800079000 pattern 0xAAAAAAAA write ok read ok
block 122 addr 0x80007A000 pattern 0x55555555 write ok read ok
block 122 addr 0x80007A000 pattern 0xAAAAAAAA write ok read ok
block 123 addr 0x80007B000 pattern 0x55555555 write ok read ok
block 123 addr 0x80007B000 pattern 0xAAAAAAAA write ok read ok
block 124 addr 0x80007C000 pattern 0x55555555 write ok read ok
block 124 addr 0x80007C000 pattern 0xAAAAAAAA write ok read ok
block 125 addr 0x80007D000 pattern 0x55555555 write ok read ok
block 125 addr 0x80007D000 pattern 0xAAAAAAAA write ok read ok
block 126 addr 0x80007E000 pattern 0x55555555 write ok read ok
block 126 addr 0x80007E000 pattern 0xAAAAAAAA write ok read ok
block 127 addr 0x80007F000 pattern 0x55555555 write ok read ok
block 127 addr 0x80007F000 pattern 0xAAAAAAAA write ok read ok
block 128 addr 0x800080000 pattern 0x55555555 write ok read ok
block 128 addr 0x800080000 pattern 0xAAAAAAAA write ok read ok
block 129 addr 0x800081000 pattern 0x55555555 write ok read ok
block 129 addr 0x800081000 pattern 0xAAAAAAAA write ok read ok
block 130 addr 0x800082000 pattern 0x55555555 write ok read ok
block 130 addr 0x800082000 pattern 0xAAAAAAAA write ok read ok
block 131 addr 0x800083000 pattern 0x55555555 write ok read ok
block 131 addr 0x800083000 pattern 0xAAAAAAAA write ok read ok
block 132 addr 0x800084000 pattern 0x55555555 write ok read ok
block 132 addr 0x800084000 pattern 0xAAAAAAAA write ok read ok
block 133 addr 0x800085000 pattern 0x55555555 write ok read ok
block 133 addr 0x800085000 pattern 0xAAAAAAAA write ok read ok
block 134 addr 0x800086000 pattern 0x55555555 write ok read ok
block 134 addr 0x800086000 pattern 0xAAAAAAAA write ok read ok
block 135 addr 0x800087000 pattern 0x55555555 write ok read ok
block 135 addr 0x800087000 pattern 0xAAAAAAAA write ok read ok
block 136 addr 0x800088000 pattern 0x55555555 write ok read ok
block 136 addr 0x800088000 pattern 0xAAAAAAAA write ok read ok
block 137 addr 0x800089000 pattern 0x55555555 write ok read ok
block 137 addr 0x800089000 pattern 0xAAAAAAAA write ok read ok
block 138 addr 0x80008A000 pattern 0x55555555 write ok read ok
block 138 addr 0x80008A000 pattern 0xAAAAAAAA write ok read ok
block 139 addr 0x80008B000 pattern 0x55555555 write ok read ok
block 139 addr 0x80008B000 pattern 0xAAAAAAAA write ok read ok
block 140 addr 0x80008C000 pattern 0x55555555 write ok read ok
block 140 addr 0x80008C000 pattern 0xAAAAAAAA write ok read ok
block 141 addr 0x80008D000 pattern 0x55555555 write ok read ok
block 141 addr 0x80008D000 pattern 0xAAAAAAAA write ok read ok
block 142 addr 0x80008E000 pattern 0x55555555 write ok read ok
block 142 addr 0x80008E000 pattern 0xAAAAAAAA write ok read ok
block 143 addr 0x80008F000 pattern 0x55555555 write ok read ok
block 143 addr 0x80008F000 pattern 0xAAAAAAAA write ok read ok
block 144 addr 0x800090000 pattern 0x55555555 write ok read ok
block 144 addr 0x800090000 pattern 0xAAAAAAAA write ok read ok
block 145 addr 0x800091000 pattern 0x55555555 write ok read ok
block 145 addr 0x800091000 pattern 0xAAAAAAAA write ok read ok
block 146 addr 0x800092000 pattern 0x55555555 write ok read ok
block 146 addr 0x800092000 pattern 0xAAAAAAAA write ok read ok
block 147 addr 0x800093000 pattern 0x55555555 write ok read ok
block 147 addr 0x800093000 pattern 0xAAAAAAAA write ok read ok
block 148 addr 0x800094000 pattern 0x55555555 write ok read ok
block 148 addr 0x800094000 pattern 0xAAAAAAAA write ok read ok
block 149 addr 0x800095000 pattern 0x55555555 write ok read ok
block 149 addr 0x800095000 pattern 0xAAAAAAAA write ok read ok
block 150 addr 0x800096000 pattern 0x55555555 write ok read ok
block 150 addr 0x800096000 pattern 0xAAAAAAAA write ok read ok
block 151 addr 0x800097000 pattern 0x55555555 write ok read ok
block 151 addr 0x800097000 pattern 0xAAAAAAAA write ok read ok
block 152 addr 0x800098000 pattern 0x55555555 write ok read ok
block 152 addr 0x800098000 pattern 0xAAAAAAAA write ok read ok
block 153 addr 0x800099000 pattern 0x55555555 write ok read ok
block 153 addr 0x800099000 pattern 0xAAAAAAAA write ok read ok
block 154 addr 0x80009A000 pattern 0x55555555 write ok read ok
block 154 addr 0x80009A000 pattern 0xAAAAAAAA write ok read ok
block 155 addr 0x80009B000 pattern 0x55555555 write ok read ok
block 155 addr 0x80009B000 pattern 0xAAAAAAAA write ok read ok
block 156 addr 0x80009C000 pattern 0x55555555 write ok read ok
block 156 addr 0x80009C000 pattern 0xAAAAAAAA write ok read ok
block 157 addr 0x80009D000 pattern 0x55555555 write ok read ok
block 157 addr 0x80009D000 pattern 0xAAAAAAAA write ok read ok
block 158 addr 0x80009E000 pattern 0x55555555 write ok read ok
block 158 addr 0x80009E000 pattern 0xAAAAAAAA write ok read ok
block 159 addr 0x80009F000 pattern 0x55555555 write ok read ok
block 159 addr 0x80009F000 pattern 0xAAAAAAAA write ok read ok
block 160 addr 0x8000A0000 pattern 0x55555555 write ok read ok
block 160 addr 0x8000A0000 pattern 0xAAAAAAAA write ok read ok
block 161 addr 0x8000A1000 pattern 0x55555555 write ok read ok
block 161 addr 0x8000A1000 pattern 0xAAAAAAAA write ok read ok
block 162 addr 0x8000A2000 pattern 0x55555555 write ok read ok
block 162 addr 0x8000A2000 pattern 0xAAAAAAAA write ok read ok
block 163 addr 0x8000A3000 pattern 0x55555555 write ok read ok
block 163 addr 0x8000A3000 pattern 0xAAAAAAAA write ok read ok
block 164 addr 0x8000A4000 pattern 0x55555555 write ok read ok
block 164 addr 0x8000A4000 pattern 0xAAAAAAAA write ok read ok
block 165 addr 0x8000A5000 pattern 0x55555555 write ok read ok
block 165 addr 0x8000A5000 pattern 0xAAAAAAAA write ok read ok
block 166 addr 0x8000A6000 pattern 0x55555555 write ok read ok
block 166 addr 0x8000A6000 pattern 0xAAAAAAAA write ok read ok
block 167 addr 0x8000A7000 pattern 0x55555555 write ok read ok
block 167 addr 0x8000A7000 pattern 0xAAAAAAAA write ok read ok
block 168 addr 0x8000A8000 pattern 0x55555555 write ok read ok
block 168 addr 0x8000A8000 pattern 0xAAAAAAAA write ok read ok
block 169 addr 0x8000A9000 pattern 0x55555555 write ok read ok
block 169 addr 0x8000A9000 pattern 0xAAAAAAAA write ok read ok
block 170 addr 0x8000AA000 pattern 0x55555555 write ok read ok
block 170 addr 0x8000AA000 pattern 0xAAAAAAAA write ok read ok
block 171 addr 0x8000AB000 pattern 0x55555555 write ok read ok
block 171 addr 0x8000AB000 pattern 0xAAAAAAAA write ok read ok
block 172 addr 0x8000AC000 pattern 0x55555555 write ok read ok
block 172 addr 0x8000AC000 pattern 0xAAAAAAAA write ok read ok
block 173 addr 0x8000AD000 pattern 0x55555555 write ok read ok
block 173 addr 0x8000AD000 pattern 0xAAAAAAAA write ok read ok
block 174 addr 0x8000AE000 pattern 0x55555555 write ok read ok
block 174 addr 0x8000AE000 pattern 0xAAAAAAAA write ok read ok
block 175 addr 0x8000AF000 pattern 0x55555555 write ok read ok
block 175 addr 0x8000AF000 pattern 0xAAAAAAAA write ok read ok
block 176 addr 0x8000B0000 pattern 0x55555555 write ok read ok
block 176 addr 0x8000B0000 pattern 0xAAAAAAAA write ok read ok
block 177 addr 0x8000B1000 pattern 0x55555555 write ok read ok
block 177 addr 0x8000B1000 pattern 0xAAAAAAAA write ok read ok
block 178 addr 0x8000B2000 pattern 0x55555555 write ok read ok
block 178 addr 0x8000B2000 pattern 0xAAAAAAAA write ok read ok
block 179 addr 0x8000B3000 pattern 0x55555555 write ok read ok
block 179 addr 0x8000B3000 pattern 0xAAAAAAAA write ok read ok
block 180 addr 0x8000B4000 pattern 0x55555555 write ok read ok
block 180 addr 0x8000B4000 pattern 0xAAAAAAAA write ok read ok
block 181 addr 0x8000B5000 pattern 0x55555555 write ok read ok
block 181 addr 0x8000B5000 pattern 0xAAAAAAAA write ok read ok
block 182 addr 0x8000B6000 pattern 0x55555555 write ok read ok
block 182 addr 0x8000B6000 pattern 0xAAAAAAAA write ok read ok
block 183 addr 0x8000B7000 pattern 0x55555555 write ok read ok
block 183 addr 0x8000B7000 pattern 0xAAAAAAAA write ok read ok
block 184 addr 0x8000B8000 pattern 0x55555555 write ok read ok
block 184 addr 0x8000B8000 pattern 0xAAAAAAAA write ok read ok
block 185 addr 0x8000B9000 pattern 0x55555555 write ok read ok
block 185 addr 0x8000B9000 pattern 0xAAAAAAAA write ok read ok
block 186 addr 0x8000BA000 pattern 0x55555555 write ok read ok
block 186 addr 0x8000BA000 pattern 0xAAAAAAAA write ok read ok
block 187 addr 0x8000BB000 pattern 0x55555555 write ok read ok
block 187 addr 0x8000BB000 pattern 0xAAAAAAAA write ok read ok
block 188 addr 0x8000BC000 pattern 0x55555555 write ok read ok
block 188 addr 0x8000BC000 pattern 0xAAAAAAAA write ok read ok
block 189 addr 0x8000BD000 pattern 0x55555555 write ok read ok
block 189 addr 0x8000BD000 pattern 0xAAAAAAAA write ok read ok
block 190 addr 0x8000BE000 pattern 0x55555555 write ok read ok
block 190 addr 0x8000BE000 pattern 0xAAAAAAAA write ok read ok
block 191 addr 0x8000BF000 pattern 0x55555555 write ok read ok
block 191 addr 0x8000BF000 pattern 0xAAAAAAAA write ok read ok
block 192 addr 0x8000C0000 pattern 0x55555555 write ok read ok
block 192 addr 0x8000C0000 pattern 0xAAAAAAAA write ok read ok
block 193 addr 0x8000C1000 pattern 0x55555555 write ok read ok
block 193 addr 0x8000C1000 pattern 0xAAAAAAAA write ok read ok
block 194 addr 0x8000C2000 pattern 0x55555555 write ok read ok
block 194 addr 0x8000C2000 pattern 0xAAAAAAAA write ok read ok
block 195 addr 0x8000C3000 pattern 0x55555555 write ok read ok
block 195 addr 0x8000C3000 pattern 0xAAAAAAAA write ok read ok
block 196 addr 0x8000C4000 pattern 0x55555555 write ok read ok
block 196 addr 0x8000C4000 pattern 0xAAAAAAAA write ok read ok
block 197 addr 0x8000C5000 pattern 0x55555555 write ok read ok
block 197 addr 0x8000C5000 pattern 0xAAAAAAAA write ok read ok
block 198 addr 0x8000C6000 pattern 0x55555555 write ok read ok
block 198 addr 0x8000C6000 pattern 0xAAAAAAAA write ok read ok
block 199 addr 0x8000C7000 pattern 0x55555555 write ok read ok
block 199 addr 0x8000C7000 pattern 0xAAAAAAAA write ok read ok
block 200 addr 0x8000C8000 pattern 0x55555555 write ok read ok
block 200 addr 0x8000C8000 pattern 0xAAAAAAAA write ok read ok
block 201 addr 0x8000C9000 pattern 0x55555555 write ok read ok
block 201 addr 0x8000C9000 pattern 0xAAAAAAAA write ok read ok
block 202 addr 0x8000CA000 pattern 0x55555555 write ok read ok
block 202 addr 0x8000CA000 pattern 0xAAAAAAAA write ok read ok
block 203 addr 0x8000CB000 pattern 0x55555555 write ok read ok
block 203 addr 0x8000CB000 pattern 0xAAAAAAAA write ok read ok
block 204 addr 0x8000CC000 pattern 0x55555555 write ok read ok
block 204 addr 0x8000CC000 pattern 0xAAAAAAAA write ok read ok
block 205 addr 0x8000CD000 pattern 0x55555555 write ok read ok
block 205 addr 0x8000CD000 pattern 0xAAAAAAAA write ok read ok
block 206 addr 0x8000CE000 pattern 0x55555555 write ok read ok
block 206 addr 0x8000CE000 pattern 0xAAAAAAAA write ok read ok
block 207 addr 0x8000CF000 pattern 0x55555555 write ok read ok
block 207 addr 0x8000CF000 pattern 0xAAAAAAAA write ok read ok
block 208 addr 0x8000D0000 pattern 0x55555555 write ok read ok
block 208 addr 0x8000D0000 pattern 0xAAAAAAAA write ok read ok
block 209 addr 0x8000D1000 pattern 0x55555555 write ok read ok
block 209 addr 0x8000D1000 pattern 0xAAAAAAAA write ok read ok
block 210 addr 0x8000D2000 pattern 0x55555555 write ok read ok
block 210 addr 0x8000D2000 pattern 0xAAAAAAAA write ok read ok
block 211 addr 0x8000D3000 pattern 0x55555555 write ok read ok
block 211 addr 0x8000D3000 pattern 0xAAAAAAAA write ok read ok
block 212 addr 0x8000D4000 pattern 0x55555555 write ok read ok
block 212 addr 0x8000D4000 pattern 0xAAAAAAAA write ok read ok
block 213 addr 0x8000D5000 pattern 0x55555555 write ok read ok
block 213 addr 0x8000D5000 pattern 0xAAAAAAAA write ok read ok
block 214 addr 0x8000D6000 pattern 0x55555555 write ok read ok
block 214 addr 0x8000D6000 pattern 0xAAAAAAAA write ok read ok
block 215 addr 0x8000D7000 pattern 0x55555555 write ok read ok
block 215 addr 0x8000D7000 pattern 0xAAAAAAAA write ok read ok
block 216 addr 0x8000D8000 pattern 0x55555555 write ok read ok
block 216 addr 0x8000D8000 pattern 0xAAAAAAAA write ok read ok
block 217 addr 0x8000D9000 pattern 0x55555555 write ok read ok
block 217 addr 0x8000D9000 pattern 0xAAAAAAAA write ok read ok
block 218 addr 0x8000DA000 pattern 0x55555555 write ok read ok
block 218 addr 0x8000DA000 pattern 0xAAAAAAAA write ok read ok
block 219 addr 0x8000DB000 pattern 0x55555555 write ok read ok
block 219 addr 0x8000DB000 pattern 0xAAAAAAAA write ok read ok
block 220 addr 0x8000DC000 pattern 0x55555555 write ok read ok
block 220 addr 0x8000DC000 pattern 0xAAAAAAAA write ok read ok
block 221 addr 0x8000DD000 pattern 0x55555555 write ok read ok
block 221 addr 0x8000DD000 pattern 0xAAAAAAAA write ok read ok
block 222 addr 0x8000DE000 pattern 0x55555555 write ok read ok
block 222 addr 0x8000DE000 pattern 0xAAAAAAAA write ok read ok
block 223 addr 0x8000DF000 pattern 0x55555555 write ok read ok
block 223 addr 0x8000DF000 pattern 0xAAAAAAAA write ok read ok
block 224 addr 0x8000E0000 pattern 0x55555555 write ok read ok
block 224 addr 0x8000E0000 pattern 0xAAAAAAAA write ok read ok
block 225 addr 0x8000E1000 pattern 0x55555555 write ok read ok
block 225 addr 0x8000E1000 pattern 0xAAAAAAAA write ok read ok
block 226 addr 0x8000E2000 pattern 0x55555555 write ok read ok
block 226 addr 0x8000E2000 pattern 0xAAAAAAAA write ok read ok
block 227 addr 0x8000E3000 pattern 0x55555555 write ok read ok
block 227 addr 0x8000E3000 pattern 0xAAAAAAAA write ok read ok
block 228 addr 0x8000E4000 pattern 0x55555555 write ok read ok
block 228 addr 0x8000E4000 pattern 0xAAAAAAAA write ok read ok
block 229 addr 0x8000E5000 pattern 0x55555555 write ok read ok
block 229 addr 0x8000E5000 pattern 0xAAAAAAAA write ok read ok
block 230 addr 0x8000E6000 pattern 0x55555555 write ok read ok
block 230 addr 0x8000E6000 pattern 0xAAAAAAAA write ok read ok
block 231 addr 0x8000E7000 pattern 0x55555555 write ok read ok
block 231 addr 0x8000E7000 pattern 0xAAAAAAAA write ok read ok
block 232 addr 0x8000E8000 pattern 0x55555555 write ok read ok
block 232 addr 0x8000E8000 pattern 0xAAAAAAAA write ok read ok
block 233 addr 0x8000E9000 pattern 0x55555555 write ok read ok
block 233 addr 0x8000E9000 pattern 0xAAAAAAAA write ok read ok
block 234 addr 0x8000EA000 pattern 0x55555555 write ok read ok
block 234 addr 0x8000EA000 pattern 0xAAAAAAAA write ok read ok
block 235 addr 0x8000EB000 pattern 0x55555555 write ok read ok
block 235 addr 0x8000EB000 pattern 0xAAAAAAAA write ok read ok
block 236 addr 0x8000EC000 pattern 0x55555555 write ok read ok
block 236 addr 0x8000EC000 pattern 0xAAAAAAAA write ok read ok
block 237 addr 0x8000ED000 pattern 0x55555555 write ok read ok
block 237 addr 0x8000ED000 pattern 0xAAAAAAAA write ok read ok
block 238 addr 0x8000EE000 pattern 0x55555555 write ok read ok
block 238 addr 0x8000EE000 pattern 0xAAAAAAAA write ok read ok
block 239 addr 0x8000EF000 pattern 0x55555555 write ok read ok
block 239 addr 0x8000EF000 pattern 0xAAAAAAAA write ok read ok
block 240 addr 0x8000F0000 pattern 0x55555555 write ok read ok
block 240 addr 0x8000F0000 pattern 0xAAAAAAAA write ok read ok
block 241 addr 0x8000F1000 pattern 0x55555555 write ok read ok
block 241 addr 0x8000F1000 pattern 0xAAAAAAAA write ok read ok
block 242 addr 0x8000F2000 pattern 0x55555555 write ok read ok
block 242 addr 0x8000F2000 pattern 0xAAAAAAAA write ok read ok
block 243 addr 0x8000F3000 pattern 0x55555555 write ok read ok
block 243 addr 0x8000F3000 pattern 0xAAAAAAAA write ok read ok
block 244 addr 0x8000F4000 pattern 0x55555555 write ok read ok
block 244 addr 0x8000F4000 pattern 0xAAAAAAAA write ok read ok
block 245 addr 0x8000F5000 pattern 0x55555555 write ok read ok
block 245 addr 0x8000F5000 pattern 0xAAAAAAAA write ok read ok
block 246 addr 0x8000F6000 pattern 0x55555555 write ok read ok
block 246 addr 0x8000F6000 pattern 0xAAAAAAAA write ok read ok
block 247 addr 0x8000F7000 pattern 0x55555555 write ok read ok
block 247 addr 0x8000F7000 pattern 0xAAAAAAAA write ok read ok
block 248 addr 0x8000F8000 pattern 0x55555555 write ok read ok
block 248 addr 0x8000F8000 pattern 0xAAAAAAAA write ok read ok
block 249 addr 0x8000F9000 pattern 0x55555555 write ok read ok
block 249 addr 0x8000F9000 pattern 0xAAAAAAAA write ok read ok
block 250 addr 0x8000FA000 pattern 0x55555555 write ok read ok
block 250 addr 0x8000FA000 pattern 0xAAAAAAAA write ok read ok
block 251 addr 0x8000FB000 pattern 0x55555555 write ok read ok
block 251 addr 0x8000FB000 pattern 0xAAAAAAAA write ok read ok
block 252 addr 0x8000FC000 pattern 0x55555555 write ok read ok
block 252 addr 0x8000FC000 pattern 0xAAAAAAAA write ok read ok
block 253 addr 0x8000FD000 pattern 0x55555555 write ok read ok
block 253 addr 0x8000FD000 pattern 0xAAAAAAAA write ok read ok
block 254 addr 0x8000FE000 pattern 0x55555555 write ok read ok
block 254 addr 0x8000FE000 pattern 0xAAAAAAAA write ok read ok
block 255 addr 0x8000FF000 pattern 0x55555555 write ok read ok
block 255 addr 0x8000FF000 pattern 0xAAAAAAAA write ok read ok
testmemory --1MB: Passed
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'touch --off',
replace('
touch --off', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered off
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'touch --on',
replace('
touch --on', char(10), char(13, 10)) || char(13) || replace('
Touch controller powered on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx',
replace('
tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx', char(10), char(13, 10)) || char(13) || replace('
hydra dx1: 0x12 (USB data +)
hydra dx2: 0x13 (USB data -)
hydra acc1: 0x40 (accessory id 1)
hydra acc2: 0x41 (accessory id 2)
hydra idx: 0x07 (identification bus)
hydra vdx: 0x1C (data line voltage detect)
hydra communication registers read complete
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'tristar -p',
replace('
tristar -p', char(10), char(13, 10)) || char(13) || replace('
hydra id: HYDRA rev B1
hydra reg 0x10 = 0x5B
hydra reg 0x11 = 0x80
hydra reg 0x12 = 0xA5
hydra reg 0x13 = 0xCA
hydra reg 0x14 = 0xEF
hydra reg 0x15 = 0x14
hydra reg 0x16 = 0x39
hydra reg 0x17 = 0x5E
hydra reg 0x18 = 0x83
hydra reg 0x19 = 0xA8
hydra reg 0x1A = 0xCD
hydra reg 0x1B = 0xF2
hydra reg 0x1C = 0x17
hydra reg 0x1D = 0x3C
hydra reg 0x1E = 0x61
hydra reg 0x1F = 0x86
hydra reg 0x20 = 0xAB
hydra reg 0x21 = 0xD0
hydra reg 0x22 = 0xF5
hydra reg 0x23 = 0x1A
hydra reg 0x24 = 0x3F
hydra reg 0x25 = 0x64
hydra reg 0x26 = 0x89
hydra reg 0x27 = 0xAE
hydra reg 0x28 = 0xD3
hydra reg 0x29 = 0xF8
hydra reg 0x2A = 0x1D
hydra reg 0x2B = 0x42
hydra reg 0x2C = 0x67
hydra reg 0x2D = 0x8C
hydra reg 0x2E = 0xB1
hydra reg 0x2F = 0xD6
hydra reg 0x30 = 0xFB
hydra reg 0x31 = 0x20
hydra reg 0x32 = 0x45
hydra reg 0x33 = 0x6A
hydra reg 0x34 = 0x8F
hydra reg 0x35 = 0xB4
hydra reg 0x36 = 0xD9
hydra reg 0x37 = 0xFE
hydra reg 0x38 = 0x23
hydra reg 0x39 = 0x48
hydra reg 0x3A = 0x6D
hydra reg 0x3B = 0x92
hydra reg 0x3C = 0xB7
hydra reg 0x3D = 0xDC
hydra reg 0x3E = 0x01
hydra reg 0x3F = 0x26
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'wifi --off',
replace('
wifi --off', char(10), char(13, 10)) || char(13) || replace('
Wifi power off done
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'wifi --on',
replace('
wifi --on', char(10), char(13, 10)) || char(13) || replace('
Wifi power on success
GPS is already on
[0001a1f3:00000001] :-) ', char(10), char(13, 10)),
'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', 'Grabación de demostración (placa buena simulada).');
