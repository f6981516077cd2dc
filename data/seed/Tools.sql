-- Portuguese interface until the user picks a language; nothing imported yet; disclaimer not
-- agreed to. The web addresses are illustrative (example.com): the maker puts its own download
-- and remote-support pages here, and the version page that the start-up asks (left empty, so
-- no check runs until one is set).
INSERT INTO Tools (Idioma, syncbd, UrlVersao, UrlDownload, UrlSuporte, UrlSuporte2, Termos)
VALUES ('1', '0', '', 'https://www.example.com/vekto/download',
        'https://www.example.com/vekto/suporte-remoto', 'https://www.example.com/vekto/suporte', '0');
