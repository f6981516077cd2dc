-- Rail screens start with three volt decimals and one milliamp decimal.
INSERT INTO Combos (Combo1, Combo2, Combo3, Combo4, Combo5, Combo6, Combo7, Combo8, Combo9, Combo10)
VALUES ('3', '1', '', '', '', '', '', '', '', '');
