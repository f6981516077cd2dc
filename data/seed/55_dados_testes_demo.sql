-- Demo recordings: the simulated phone's good-board answer to each test kept under a key word, per
-- model, exactly as the console shows it (masked like the masking tool leaves it). These are
-- illustrative, not readings of real boards. Written by vekto-demoseeds;
-- the comparator tests check them against the simulator.
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6 Plus', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 6s Plus', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 7 Plus', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP 8 Plus', 'BATERIA',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'TRISTAR',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'DRAM',
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
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES ('IP X', 'BATERIA',
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
