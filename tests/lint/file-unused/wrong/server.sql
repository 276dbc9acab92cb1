INSERT INTO device_type (name, version) VALUES ('Delta 8', 'D1');
INSERT INTO config_file VALUES ('Delta 8', 'common/dc/conf/dc/devtype_xmlconf/Delta_8_ServerConfiguration.xml');
