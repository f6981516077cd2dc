-- The model preselected on the very first start.
INSERT INTO Ultimo (Modelo) VALUES ('IP 7');
