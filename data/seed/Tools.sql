-- Portuguese interface until the user picks a language; nothing imported yet.
INSERT INTO Tools (Idioma, syncbd) VALUES ('1', '0');
