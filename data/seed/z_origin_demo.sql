-- Every shipped reference is demo data: the rail references, the I2C device lists and the
-- recorded answers above all come from the simulated good board. This file runs after every
-- other seed (its name sorts last), so it marks exactly the rows the build ships.
INSERT INTO RefOrigin (Kind, Model, Item, Value, Source, Boards, Serials, At, Version, File, FileDate)
    SELECT 'rail', Modelo, Malha, refv, 'demo', 0, '', '', '', '', '' FROM Master;
INSERT INTO RefOrigin (Kind, Model, Item, Value, Source, Boards, Serials, At, Version, File, FileDate)
    SELECT 'i2c', Aparelho, i, i, 'demo', 0, '', '', '', '', '' FROM i;
INSERT INTO RefOrigin (Kind, Model, Item, Value, Source, Boards, Serials, At, Version, File, FileDate)
    SELECT 'dados', Aparelho, Comando, Dados, 'demo', 0, '', '', '', '', '' FROM Dados;
