-- Price list of the other areas of Valle Norte, and of Costa Sur.

-- Admissions
execute procedure alta_precio(1, 1, 'ADMISION', 150, 1, '12510', 101, 3);
execute procedure alta_precio(1, 2, 'ADMISION DE URGENCIA', 200, 1, '12510', 101, 3);
execute procedure alta_precio(1, 3, 'REINGRESO DE PACIENTE', 90, 1, '12510', 101, 3);

-- Opening of dossiers
execute procedure alta_precio(2, 1, 'APERTURA DE EXPEDIENTE ADULTO', 120, 1, '12510', 101, 3);
execute procedure alta_precio(2, 2, 'APERTURA DE EXPEDIENTE INFANTIL', 100, 1, '12510', 101, 3);
execute procedure alta_precio(2, 3, 'REPOSICION DE EXPEDIENTE ADULTO', 60, 1, '12510', 101, 3);
execute procedure alta_precio(2, 4, 'REPOSICION DE EXPEDIENTE INFANTIL', 60, 1, '12510', 101, 3);

-- Children's clinic
execute procedure alta_precio(3, 1, 'CONSULTA Y DIAGNOSTICO INFANTIL', 80, 1, '12510', 201, 3);
execute procedure alta_precio(3, 2, 'PROFILAXIS INFANTIL', 120, 1, '12510', 201, 3);
execute procedure alta_precio(3, 3, 'APLICACION DE FLUOR EN GEL', 90, 1, '12510', 201, 3);
execute procedure alta_precio(3, 4, 'APLICACION DE FLUOR EN BARNIZ', 140, 1, '12510', 201, 3);
execute procedure alta_precio(3, 5, 'SELLADOR DE FOSETAS Y FISURAS', 130, 1, '12510', 201, 3);
execute procedure alta_precio(3, 6, 'TECNICA DE CEPILLADO Y CONTROL DE PLACA', 50, 1, '12510', 201, 3);
execute procedure alta_precio(3, 7, 'AMALGAMA CLASE I EN DIENTE TEMPORAL', 160, 1, '12510', 201, 3);
execute procedure alta_precio(3, 8, 'AMALGAMA CLASE II EN DIENTE TEMPORAL', 190, 1, '12510', 201, 3);
execute procedure alta_precio(3, 9, 'RESINA CLASE I EN DIENTE TEMPORAL', 220, 1, '12510', 201, 3);
execute procedure alta_precio(3, 10, 'RESINA CLASE II EN DIENTE TEMPORAL', 260, 1, '12510', 201, 3);
execute procedure alta_precio(3, 11, 'RESINA CLASE III EN DIENTE TEMPORAL', 240, 1, '12510', 201, 3);
execute procedure alta_precio(3, 12, 'RESINA CLASE V EN DIENTE TEMPORAL', 220, 1, '12510', 201, 3);
execute procedure alta_precio(3, 13, 'IONOMERO DE VIDRIO EN DIENTE TEMPORAL', 180, 1, '12510', 201, 3);
execute procedure alta_precio(3, 14, 'RESINA CLASE I EN DIENTE PERMANENTE JOVEN', 260, 1, '12510', 201, 3);
execute procedure alta_precio(3, 15, 'RESINA CLASE II EN DIENTE PERMANENTE JOVEN', 310, 1, '12510', 201, 3);
execute procedure alta_precio(3, 16, 'CORONA DE ACERO CROMO', 380, 1, '12510', 201, 3);
execute procedure alta_precio(3, 17, 'CORONA DE CELULOIDE', 360, 1, '12510', 201, 3);
execute procedure alta_precio(3, 18, 'CORONA DE ZIRCONIA INFANTIL', 1250.5, 1, '12510', 201, 3);
execute procedure alta_precio(3, 19, 'RECUBRIMIENTO PULPAR DIRECTO', 120, 1, '12510', 201, 3);
execute procedure alta_precio(3, 20, 'RECUBRIMIENTO PULPAR INDIRECTO', 110, 1, '12510', 201, 3);
execute procedure alta_precio(3, 21, 'PULPOTOMIA', 280, 1, '12510', 201, 3);
execute procedure alta_precio(3, 22, 'PULPECTOMIA', 350, 1, '12510', 201, 3);
execute procedure alta_precio(3, 23, 'APEXIFICACION POR SESION', 300, 1, '12510', 201, 3);
execute procedure alta_precio(3, 24, 'EXTRACCION DE DIENTE TEMPORAL', 150, 1, '12510', 201, 3);
execute procedure alta_precio(3, 25, 'EXTRACCION DE DIENTE PERMANENTE JOVEN', 220, 1, '12510', 201, 3);
execute procedure alta_precio(3, 26, 'EXTRACCION DE DIENTE SUPERNUMERARIO', 420, 1, '12510', 201, 3);
execute procedure alta_precio(3, 27, 'DRENAJE DE ABSCESO INFANTIL', 180, 1, '12510', 201, 3);
execute procedure alta_precio(3, 28, 'MANTENEDOR DE ESPACIO BANDA Y ANSA', 480, 1, '12510', 201, 3);
execute procedure alta_precio(3, 29, 'MANTENEDOR DE ESPACIO ARCO LINGUAL', 620, 1, '12510', 201, 3);
execute procedure alta_precio(3, 30, 'MANTENEDOR DE ESPACIO BOTON DE NANCE', 640, 1, '12510', 201, 3);
execute procedure alta_precio(3, 31, 'RECUPERADOR DE ESPACIO', 720, 1, '12510', 201, 3);
execute procedure alta_precio(3, 32, 'REJILLA LINGUAL', 690, 1, '12510', 201, 3);
execute procedure alta_precio(3, 33, 'PLACA ACTIVA CON TORNILLO', 850, 1, '12510', 201, 3);
execute procedure alta_precio(3, 34, 'PLANO INCLINADO', 450, 1, '12510', 201, 3);
execute procedure alta_precio(3, 35, 'PROTESIS INFANTIL REMOVIBLE', 980, 1, '12510', 201, 3);
execute procedure alta_precio(3, 36, 'FERULA POR TRAUMATISMO INFANTIL', 520, 1, '12510', 201, 3);
execute procedure alta_precio(3, 37, 'REIMPLANTE DENTAL INFANTIL', 600, 1, '12510', 201, 3);
execute procedure alta_precio(3, 38, 'FRENILECTOMIA INFANTIL', 550, 1, '12510', 201, 3);
execute procedure alta_precio(3, 39, 'RADIOGRAFIA PERIAPICAL INFANTIL', 45, 1, '12510', 201, 3);
execute procedure alta_precio(3, 40, 'RADIOGRAFIA OCLUSAL INFANTIL', 70, 1, '12510', 201, 3);
execute procedure alta_precio(3, 41, 'SEDACION CONSCIENTE POR SESION', 900, 1, '12510', 201, 3);

-- Others
execute procedure alta_precio(5, 1, 'CONSTANCIA DE ATENCION', 60, 1, '', 401, 1);
execute procedure alta_precio(5, 2, 'COPIA DE EXPEDIENTE', 80, 1, '', 401, 1);
execute procedure alta_precio(5, 3, 'COPIA DE RADIOGRAFIA', 70, 1, '', 401, 1);
execute procedure alta_precio(5, 4, 'CARNET DE CITAS', 25, 1, '', 401, 1);
execute procedure alta_precio(5, 5, 'KIT DE HIGIENE BUCAL', 95.5, 1, '', 401, 1);
execute procedure alta_precio(5, 6, 'CEPILLO INTERDENTAL', 48, 1, '', 401, 1);
execute procedure alta_precio(5, 7, 'RENTA DE CASILLERO POR SEMESTRE', 250, 1, '', 401, 1);
execute procedure alta_precio(5, 8, 'REPOSICION DE CREDENCIAL', 110, 1, '', 401, 1);
execute procedure alta_precio(5, 9, 'USO DE SALA DE JUNTAS POR HORA', 350, 1, '', 401, 1);
execute procedure alta_precio(5, 10, 'REPOSICION DE LLAVE', 65, 1, '', 401, 1);
execute procedure alta_precio(5, 11, 'DONATIVO', 0, 1, '', 401, 1);

-- General public
execute procedure alta_precio(6, 1, 'CONSULTA A PUBLICO GENERAL', 180, 1, '', 401, 3);
execute procedure alta_precio(6, 2, 'PROFILAXIS A PUBLICO GENERAL', 320, 1, '', 401, 3);
execute procedure alta_precio(6, 3, 'RADIOGRAFIA PERIAPICAL A PUBLICO GENERAL', 90, 1, '', 401, 3);
execute procedure alta_precio(6, 4, 'RADIOGRAFIA PANORAMICA A PUBLICO GENERAL', 380, 1, '', 401, 3);
execute procedure alta_precio(6, 5, 'RESINA A PUBLICO GENERAL', 520, 1, '', 401, 3);
execute procedure alta_precio(6, 6, 'EXTRACCION SIMPLE A PUBLICO GENERAL', 450, 1, '', 401, 3);
execute procedure alta_precio(6, 7, 'CERTIFICADO MEDICO DENTAL', 150, 1, '', 401, 3);
execute procedure alta_precio(6, 8, 'ESTERILIZACION DE INSTRUMENTAL POR PAQUETE', 85, 1, '', 401, 3);
execute procedure alta_precio(6, 9, 'ESTUDIO HISTOPATOLOGICO', 780, 1, '', 401, 3);
execute procedure alta_precio(6, 10, 'JORNADA DE SALUD BUCAL POR PERSONA', 60, 1, '', 401, 3);

-- External laboratories
execute procedure alta_precio(7, 1, 'LAB. DEL VALLE: CORONA METAL PORCELANA', 980.5, 2, '12510', 301, 3);
execute procedure alta_precio(7, 2, 'LAB. DEL VALLE: CORONA DE ZIRCONIA', 1780, 2, '12510', 301, 3);
execute procedure alta_precio(7, 3, 'LAB. DEL VALLE: INCRUSTACION DE CERAMICA', 860, 2, '12510', 301, 3);
execute procedure alta_precio(7, 4, 'LAB. DEL VALLE: ENCERADO Y COLADO', 420, 2, '12510', 301, 3);
execute procedure alta_precio(7, 5, 'LAB. DEL VALLE: ARMAZON METALICO', 1350, 2, '12510', 301, 3);
execute procedure alta_precio(7, 6, 'LAB. DEL VALLE: TERMINADO DE PROTESIS TOTAL', 1120, 2, '12510', 301, 3);
execute procedure alta_precio(7, 7, 'LAB. DEL VALLE: ENFILADO DE DIENTES', 560, 2, '12510', 301, 3);
execute procedure alta_precio(7, 8, 'LAB. DEL VALLE: PROTESIS FLEXIBLE', 1480, 2, '12510', 301, 3);
execute procedure alta_precio(7, 9, 'LAB. DEL VALLE: GUARDA OCLUSAL', 450, 2, '12510', 301, 3);
execute procedure alta_precio(7, 10, 'LAB. DEL VALLE: PLACA HAWLEY', 520, 2, '12510', 301, 3);
execute procedure alta_precio(7, 11, 'LAB. DEL VALLE: REPARACION URGENTE', 260, 2, '12510', 301, 3);
execute procedure alta_precio(7, 12, 'LAB. DEL VALLE: CARILLA DE PORCELANA', 1290, 2, '12510', 301, 3);
execute procedure alta_precio(7, 13, 'CERAMICA NORTE: CORONA METAL PORCELANA', 980.5, 2, '12510', 302, 3);
execute procedure alta_precio(7, 14, 'CERAMICA NORTE: CORONA DE ZIRCONIA', 1780, 2, '12510', 302, 3);
execute procedure alta_precio(7, 15, 'CERAMICA NORTE: INCRUSTACION DE CERAMICA', 860, 2, '12510', 302, 3);
execute procedure alta_precio(7, 16, 'CERAMICA NORTE: ENCERADO Y COLADO', 420, 2, '12510', 302, 3);
execute procedure alta_precio(7, 17, 'CERAMICA NORTE: ARMAZON METALICO', 1350, 2, '12510', 302, 3);
execute procedure alta_precio(7, 18, 'CERAMICA NORTE: TERMINADO DE PROTESIS TOTAL', 1120, 2, '12510', 302, 3);
execute procedure alta_precio(7, 19, 'CERAMICA NORTE: ENFILADO DE DIENTES', 560, 2, '12510', 302, 3);
execute procedure alta_precio(7, 20, 'CERAMICA NORTE: PROTESIS FLEXIBLE', 1480, 2, '12510', 302, 3);
execute procedure alta_precio(7, 21, 'CERAMICA NORTE: GUARDA OCLUSAL', 450, 2, '12510', 302, 3);
execute procedure alta_precio(7, 22, 'CERAMICA NORTE: PLACA HAWLEY', 520, 2, '12510', 302, 3);
execute procedure alta_precio(7, 23, 'CERAMICA NORTE: REPARACION URGENTE', 260, 2, '12510', 302, 3);
execute procedure alta_precio(7, 24, 'CERAMICA NORTE: CARILLA DE PORCELANA', 1290, 2, '12510', 302, 3);

-- Students
execute procedure alta_precio(8, 1, 'EXAMEN EXTRAORDINARIO', 220, 1, '', 401, 3);
execute procedure alta_precio(8, 2, 'EXAMEN DE REGULARIZACION', 260, 1, '', 401, 3);
execute procedure alta_precio(8, 3, 'EXAMEN ESPECIAL', 300, 1, '', 401, 3);
execute procedure alta_precio(8, 4, 'CURSO INTERSEMESTRAL', 1200, 1, '', 401, 3);
execute procedure alta_precio(8, 5, 'PRACTICA DE CLINICA EXTRAORDINARIA', 350, 1, '', 401, 3);
execute procedure alta_precio(8, 6, 'MATERIAL DE LABORATORIO POR SEMESTRE', 850, 1, '', 401, 3);
execute procedure alta_precio(8, 7, 'TIPODONTO EN PRESTAMO', 180, 1, '', 401, 3);
execute procedure alta_precio(8, 8, 'REPOSICION DE INSTRUMENTAL', 0, 1, '', 401, 3);
execute procedure alta_precio(8, 9, 'CONSTANCIA DE ESTUDIOS', 55, 1, '', 401, 3);
execute procedure alta_precio(8, 10, 'KARDEX', 45, 1, '', 401, 3);
execute procedure alta_precio(8, 11, 'CARTA DE PASANTE', 120, 1, '', 401, 3);
execute procedure alta_precio(8, 12, 'SEGURO FACULTATIVO', 90, 1, '', 401, 3);
execute procedure alta_precio(8, 13, 'ESTERILIZACION DE INSTRUMENTAL', 30, 1, '', 401, 3);
execute procedure alta_precio(8, 14, 'MANDIL DE PLOMO EN PRESTAMO', 40, 1, '', 401, 3);
execute procedure alta_precio(8, 15, 'TRAMITE DE TITULACION', 1850, 1, '', 401, 3);

-- Sundries
execute procedure alta_precio(9, 1, 'PLAYERA INSTITUCIONAL', 240, 1, '', 401, 1);
execute procedure alta_precio(9, 2, 'BATA CLINICA', 480, 1, '', 401, 1);
execute procedure alta_precio(9, 3, 'UNIFORME QUIRURGICO', 650, 1, '', 401, 1);
execute procedure alta_precio(9, 4, 'TAZA INSTITUCIONAL', 120, 1, '', 401, 1);
execute procedure alta_precio(9, 5, 'ESTACIONAMIENTO POR SEMESTRE', 600, 1, '', 401, 1);
execute procedure alta_precio(9, 6, 'TARJETON DE ESTACIONAMIENTO', 80, 1, '', 401, 1);
execute procedure alta_precio(9, 7, 'RENTA DE AUDITORIO POR HORA', 900, 1, '', 401, 1);
execute procedure alta_precio(9, 8, 'CREDENCIAL', 110, 1, '', 401, 1);
execute procedure alta_precio(9, 9, 'FOTOCOPIA', 1.5, 1, '', 401, 1);
execute procedure alta_precio(9, 10, 'IMPRESION A COLOR', 6.75, 1, '', 401, 1);
execute procedure alta_precio(9, 11, 'GUANTES CAJA CON CIEN', 185, 1, '', 401, 1);
execute procedure alta_precio(9, 12, 'CUBREBOCAS CAJA CON CINCUENTA', 95, 1, '', 401, 1);
execute procedure alta_precio(9, 13, 'CAMPOS DESECHABLES PAQUETE', 140, 1, '', 401, 1);
execute procedure alta_precio(9, 14, 'CAJA DE PUNZOCORTANTES', 75, 1, '', 401, 1);

-- Library
execute procedure alta_precio(10, 1, 'MULTA POR DIA DE RETRASO', 5, 1, '', 401, 3);
execute procedure alta_precio(10, 2, 'REPOSICION DE LIBRO', 0, 1, '', 401, 3);
execute procedure alta_precio(10, 3, 'CREDENCIAL DE BIBLIOTECA', 60, 1, '', 401, 3);
execute procedure alta_precio(10, 4, 'PRESTAMO INTERBIBLIOTECARIO', 45, 1, '', 401, 3);
execute procedure alta_precio(10, 5, 'BUSQUEDA BIBLIOGRAFICA', 80, 1, '', 401, 3);
execute procedure alta_precio(10, 6, 'IMPRESION POR HOJA', 2, 1, '', 401, 3);
execute procedure alta_precio(10, 7, 'ENCUADERNADO', 65, 1, '', 401, 3);
execute procedure alta_precio(10, 8, 'CUBICULO DE ESTUDIO POR DIA', 30, 1, '', 401, 3);

-- Courses and diplomas
execute procedure alta_precio(11, 1, 'DIPLOMADO EN ENDODONCIA CLINICA MENSUALIDAD', 2800, 1, '12520', 401, 3);
execute procedure alta_precio(11, 2, 'DIPLOMADO EN IMPLANTOLOGIA MENSUALIDAD', 4200, 1, '12520', 401, 3);
execute procedure alta_precio(11, 3, 'DIPLOMADO EN ORTODONCIA BASICA MENSUALIDAD', 3100, 1, '12520', 401, 3);
execute procedure alta_precio(11, 4, 'DIPLOMADO EN ODONTOLOGIA ESTETICA MENSUALIDAD', 2950, 1, '12520', 401, 3);
execute procedure alta_precio(11, 5, 'CURSO DE RADIOLOGIA DIGITAL', 1500, 1, '12520', 401, 3);
execute procedure alta_precio(11, 6, 'CURSO DE URGENCIAS MEDICAS', 900, 1, '12520', 401, 3);
execute procedure alta_precio(11, 7, 'CURSO DE FOTOGRAFIA DENTAL', 1100, 1, '12520', 401, 3);
execute procedure alta_precio(11, 8, 'INSCRIPCION A DIPLOMADO', 1200, 1, '12520', 401, 3);
execute procedure alta_precio(11, 9, 'CONGRESO ESTUDIANTIL', 650, 1, '12520', 401, 3);
execute procedure alta_precio(11, 10, 'MATERIAL DE CURSO', 450, 1, '12520', 401, 3);

-- Master and doctor
execute procedure alta_precio(12, 1, 'MAESTRIA EN CIENCIAS ODONTOLOGICAS INSCRIPCION', 5200, 1, '12520', 401, 3);
execute procedure alta_precio(12, 2, 'MAESTRIA EN CIENCIAS ODONTOLOGICAS COLEGIATURA', 8400, 1, '12520', 401, 3);
execute procedure alta_precio(12, 3, 'DOCTORADO EN CIENCIAS ODONTOLOGICAS INSCRIPCION', 6100, 1, '12520', 401, 3);
execute procedure alta_precio(12, 4, 'DOCTORADO EN CIENCIAS ODONTOLOGICAS COLEGIATURA', 9800, 1, '12520', 401, 3);
execute procedure alta_precio(12, 5, 'ESPECIALIDAD EN ENDODONCIA COLEGIATURA', 11200, 1, '12520', 401, 3);
execute procedure alta_precio(12, 6, 'ESPECIALIDAD EN ORTODONCIA COLEGIATURA', 12600, 1, '12520', 401, 3);
execute procedure alta_precio(12, 7, 'ESPECIALIDAD EN PERIODONCIA COLEGIATURA', 11200, 1, '12520', 401, 3);
execute procedure alta_precio(12, 8, 'EXAMEN DE GRADO', 3200, 1, '12520', 401, 3);

-- Entrance examinations of the specialities
execute procedure alta_precio(13, 1, 'EXAMEN DE ADMISION A ESPECIALIDAD EN ENDODONCIA', 1450, 1, '12520', 401, 3);
execute procedure alta_precio(13, 2, 'EXAMEN DE ADMISION A ESPECIALIDAD EN ORTODONCIA', 1450, 1, '12520', 401, 3);
execute procedure alta_precio(13, 3, 'EXAMEN DE ADMISION A ESPECIALIDAD EN PERIODONCIA', 1450, 1, '12520', 401, 3);
execute procedure alta_precio(13, 4, 'EXAMEN DE ADMISION A ODONTOPEDIATRIA', 1450, 1, '12520', 401, 3);
execute procedure alta_precio(13, 5, 'EXAMEN DE CONOCIMIENTOS', 800, 1, '12520', 401, 3);
execute procedure alta_precio(13, 6, 'EXAMEN PSICOMETRICO', 350, 1, '12520', 401, 3);
execute procedure alta_precio(13, 7, 'EXAMEN DE INGLES', 420, 1, '12520', 401, 3);

-- Endodontics
execute procedure alta_precio(14, 1, 'ENDODONCIA ANTERIOR', 1250, 1, '12520', 251, 3);
execute procedure alta_precio(14, 2, 'RETRATAMIENTO ENDODONTICO ANTERIOR', 1700, 1, '12520', 251, 3);
execute procedure alta_precio(14, 3, 'CIRUGIA APICAL ANTERIOR', 1950, 1, '12520', 251, 3);
execute procedure alta_precio(14, 4, 'APEXIFICACION ANTERIOR', 900, 1, '12520', 251, 3);
execute procedure alta_precio(14, 5, 'REVASCULARIZACION ANTERIOR', 1450, 1, '12520', 251, 3);
execute procedure alta_precio(14, 6, 'RETIRO DE INSTRUMENTO FRACTURADO ANTERIOR', 1150, 1, '12520', 251, 3);
execute procedure alta_precio(14, 7, 'ENDODONCIA PREMOLAR', 1480, 1, '12520', 251, 3);
execute procedure alta_precio(14, 8, 'RETRATAMIENTO ENDODONTICO PREMOLAR', 1930, 1, '12520', 251, 3);
execute procedure alta_precio(14, 9, 'CIRUGIA APICAL PREMOLAR', 2180, 1, '12520', 251, 3);
execute procedure alta_precio(14, 10, 'APEXIFICACION PREMOLAR', 1130, 1, '12520', 251, 3);
execute procedure alta_precio(14, 11, 'REVASCULARIZACION PREMOLAR', 1680, 1, '12520', 251, 3);
execute procedure alta_precio(14, 12, 'RETIRO DE INSTRUMENTO FRACTURADO PREMOLAR', 1380, 1, '12520', 251, 3);
execute procedure alta_precio(14, 13, 'ENDODONCIA MOLAR', 1890, 1, '12520', 251, 3);
execute procedure alta_precio(14, 14, 'RETRATAMIENTO ENDODONTICO MOLAR', 2340, 1, '12520', 251, 3);
execute procedure alta_precio(14, 15, 'CIRUGIA APICAL MOLAR', 2590, 1, '12520', 251, 3);
execute procedure alta_precio(14, 16, 'APEXIFICACION MOLAR', 1540, 1, '12520', 251, 3);
execute procedure alta_precio(14, 17, 'REVASCULARIZACION MOLAR', 2090, 1, '12520', 251, 3);
execute procedure alta_precio(14, 18, 'RETIRO DE INSTRUMENTO FRACTURADO MOLAR', 1790, 1, '12520', 251, 3);
execute procedure alta_precio(14, 19, 'CONSULTA DE ENDODONCIA', 150, 1, '12520', 251, 3);
execute procedure alta_precio(14, 20, 'URGENCIA ENDODONTICA', 380, 1, '12520', 251, 3);
execute procedure alta_precio(14, 21, 'SELLADO DE PERFORACION CON MTA', 920, 1, '12520', 251, 3);

-- Periodontics
execute procedure alta_precio(15, 1, 'CONSULTA DE PERIODONCIA', 150, 1, '12520', 251, 3);
execute procedure alta_precio(15, 2, 'FASE I POR CUADRANTE', 420, 3, '12520', 251, 3);
execute procedure alta_precio(15, 3, 'FASE I COMPLETA', 1500, 1, '12520', 251, 3);
execute procedure alta_precio(15, 4, 'COLGAJO DE ACCESO POR CUADRANTE', 1350, 3, '12520', 251, 3);
execute procedure alta_precio(15, 5, 'REGENERACION TISULAR GUIADA', 2900, 1, '12520', 251, 3);
execute procedure alta_precio(15, 6, 'INJERTO DE TEJIDO CONECTIVO', 2250, 1, '12520', 251, 3);
execute procedure alta_precio(15, 7, 'INJERTO GINGIVAL LIBRE', 1950, 1, '12520', 251, 3);
execute procedure alta_precio(15, 8, 'ALARGAMIENTO DE CORONA', 1250, 1, '12520', 251, 3);
execute procedure alta_precio(15, 9, 'GINGIVOPLASTIA ESTETICA', 1150, 1, '12520', 251, 3);
execute procedure alta_precio(15, 10, 'CIRUGIA RESECTIVA', 1650, 1, '12520', 251, 3);
execute procedure alta_precio(15, 11, 'AMPUTACION RADICULAR', 1280, 1, '12520', 251, 3);
execute procedure alta_precio(15, 12, 'HEMISECCION', 1200, 1, '12520', 251, 3);
execute procedure alta_precio(15, 13, 'TUNELIZACION', 1350, 1, '12520', 251, 3);
execute procedure alta_precio(15, 14, 'MANTENIMIENTO PERIODONTAL', 480, 1, '12520', 251, 3);
execute procedure alta_precio(15, 15, 'IMPLANTE INMEDIATO', 7600, 1, '12520', 251, 3);
execute procedure alta_precio(15, 16, 'ELEVACION DE SENO MAXILAR', 6400, 1, '12520', 251, 3);
execute procedure alta_precio(15, 17, 'FERULA PERIODONTAL', 850, 1, '12520', 251, 3);
execute procedure alta_precio(15, 18, 'DETARTRAJE ULTRASONICO', 520, 1, '12520', 251, 3);

-- Paediatric dentistry
execute procedure alta_precio(16, 1, 'CONSULTA DE ODONTOPEDIATRIA', 140, 1, '12520', 251, 3);
execute procedure alta_precio(16, 2, 'PROFILAXIS Y FLUOR', 260, 1, '12520', 251, 3);
execute procedure alta_precio(16, 3, 'SELLADOR DE FOSETAS', 190, 1, '12520', 251, 3);
execute procedure alta_precio(16, 4, 'RESINA EN DIENTE TEMPORAL', 340, 1, '12520', 251, 3);
execute procedure alta_precio(16, 5, 'CORONA DE ACERO CROMO', 560, 1, '12520', 251, 3);
execute procedure alta_precio(16, 6, 'CORONA ESTETICA DE ZIRCONIA', 1650, 1, '12520', 251, 3);
execute procedure alta_precio(16, 7, 'PULPOTOMIA CON MTA', 520, 1, '12520', 251, 3);
execute procedure alta_precio(16, 8, 'PULPECTOMIA', 580, 1, '12520', 251, 3);
execute procedure alta_precio(16, 9, 'EXTRACCION DE DIENTE TEMPORAL', 240, 1, '12520', 251, 3);
execute procedure alta_precio(16, 10, 'MANTENEDOR DE ESPACIO FIJO', 780, 1, '12520', 251, 3);
execute procedure alta_precio(16, 11, 'MANTENEDOR DE ESPACIO REMOVIBLE', 820, 1, '12520', 251, 3);
execute procedure alta_precio(16, 12, 'ATENCION BAJO SEDACION', 2600, 1, '12520', 251, 3);
execute procedure alta_precio(16, 13, 'ATENCION EN QUIROFANO', 6800, 1, '12520', 251, 3);
execute procedure alta_precio(16, 14, 'ORTOPEDIA INTERCEPTIVA MENSUALIDAD', 450, 1, '12520', 251, 3);
execute procedure alta_precio(16, 15, 'PLACA PARA HABITO', 980, 1, '12520', 251, 3);

-- Prosthodontics
execute procedure alta_precio(17, 1, 'CONSULTA DE PROSTODONCIA', 150, 1, '12520', 251, 3);
execute procedure alta_precio(17, 2, 'PROTESIS TOTAL BIFUNCIONAL', 6800, 1, '12520', 251, 3);
execute procedure alta_precio(17, 3, 'PROTESIS PARCIAL CON ATACHES', 5900, 1, '12520', 251, 3);
execute procedure alta_precio(17, 4, 'CORONA DE ZIRCONIA MONOLITICA', 3900, 1, '12520', 251, 3);
execute procedure alta_precio(17, 5, 'CORONA DE DISILICATO', 3700, 1, '12520', 251, 3);
execute procedure alta_precio(17, 6, 'CARILLA FELDESPATICA', 3500, 1, '12520', 251, 3);
execute procedure alta_precio(17, 7, 'PUENTE DE TRES UNIDADES', 9900, 1, '12520', 251, 3);
execute procedure alta_precio(17, 8, 'REHABILITACION COMPLETA POR ARCADA', 38500, 4, '12520', 251, 3);
execute procedure alta_precio(17, 9, 'PROTESIS HIBRIDA SOBRE IMPLANTES', 42000, 4, '12520', 251, 3);
execute procedure alta_precio(17, 10, 'SOBREDENTADURA CON LOCATOR', 14500, 4, '12520', 251, 3);
execute procedure alta_precio(17, 11, 'ENCERADO DIAGNOSTICO COMPLETO', 1800, 1, '12520', 251, 3);
execute procedure alta_precio(17, 12, 'MOCK UP ESTETICO', 1250, 1, '12520', 251, 3);
execute procedure alta_precio(17, 13, 'PROVISIONALES POR DIENTE', 320, 1, '12520', 251, 3);
execute procedure alta_precio(17, 14, 'PROTESIS MAXILOFACIAL OCULAR', 5200, 1, '12520', 251, 3);
execute procedure alta_precio(17, 15, 'OBTURADOR PALATINO', 4300, 1, '12520', 251, 3);
execute procedure alta_precio(17, 16, 'FERULA OCLUSAL', 1450, 1, '12520', 251, 3);
execute procedure alta_precio(17, 17, 'AJUSTE DE PROTESIS', 280, 1, '12520', 251, 3);
execute procedure alta_precio(17, 18, 'REBASE CON ACONDICIONADOR', 520, 1, '12520', 251, 3);

-- Surgery
execute procedure alta_precio(18, 1, 'CONSULTA DE CIRUGIA', 160, 1, '12520', 251, 3);
execute procedure alta_precio(18, 2, 'TERCER MOLAR ERUPCIONADO', 850, 1, '12520', 251, 3);
execute procedure alta_precio(18, 3, 'TERCER MOLAR RETENIDO', 1950, 1, '12520', 251, 3);
execute procedure alta_precio(18, 4, 'CANINO RETENIDO', 2200, 1, '12520', 251, 3);
execute procedure alta_precio(18, 5, 'BIOPSIA', 980, 1, '12520', 251, 3);
execute procedure alta_precio(18, 6, 'QUISTECTOMIA MENOR', 2400, 1, '12520', 251, 3);
execute procedure alta_precio(18, 7, 'QUISTECTOMIA MAYOR', 4800, 1, '12520', 251, 3);
execute procedure alta_precio(18, 8, 'FRENILECTOMIA', 1150, 1, '12520', 251, 3);
execute procedure alta_precio(18, 9, 'TORUS PALATINO', 2100, 1, '12520', 251, 3);
execute procedure alta_precio(18, 10, 'TORUS MANDIBULAR', 2300, 1, '12520', 251, 3);
execute procedure alta_precio(18, 11, 'CIRUGIA PREPROTESICA POR ARCADA', 1900, 4, '12520', 251, 3);
execute procedure alta_precio(18, 12, 'REDUCCION DE FRACTURA DENTOALVEOLAR', 2600, 1, '12520', 251, 3);
execute procedure alta_precio(18, 13, 'FIJACION INTERMAXILAR', 3400, 1, '12520', 251, 3);
execute procedure alta_precio(18, 14, 'ARTROCENTESIS', 3900, 1, '12520', 251, 3);
execute procedure alta_precio(18, 15, 'INJERTO EN BLOQUE', 7200, 1, '12520', 251, 3);
execute procedure alta_precio(18, 16, 'IMPLANTE UNITARIO', 7400, 1, '12520', 251, 3);
execute procedure alta_precio(18, 17, 'TRACCION DE DIENTE RETENIDO', 2100, 1, '12520', 251, 3);
execute procedure alta_precio(18, 18, 'RETIRO DE PLACA Y TORNILLOS', 2800, 1, '12520', 251, 3);

-- Radiology
execute procedure alta_precio(19, 1, 'RADIOGRAFIA PERIAPICAL', 45, 1, '12510', 201, 3);
execute procedure alta_precio(19, 2, 'RADIOGRAFIA OCLUSAL', 75, 1, '12510', 201, 3);
execute procedure alta_precio(19, 3, 'RADIOGRAFIA ALETA DE MORDIDA', 50, 1, '12510', 201, 3);
execute procedure alta_precio(19, 4, 'SERIE RADIOGRAFICA PERIAPICAL COMPLETA', 420, 1, '12510', 201, 3);
execute procedure alta_precio(19, 5, 'SERIE DE ALETAS DE MORDIDA', 180, 1, '12510', 201, 3);
execute procedure alta_precio(19, 6, 'RADIOGRAFIA PANORAMICA', 220, 1, '12510', 201, 3);
execute procedure alta_precio(19, 7, 'RADIOGRAFIA LATERAL DE CRANEO', 220, 1, '12510', 201, 3);
execute procedure alta_precio(19, 8, 'RADIOGRAFIA POSTEROANTERIOR', 230, 1, '12510', 201, 3);
execute procedure alta_precio(19, 9, 'RADIOGRAFIA CARPAL', 190, 1, '12510', 201, 3);
execute procedure alta_precio(19, 10, 'RADIOGRAFIA DE ATM', 260, 1, '12510', 201, 3);
execute procedure alta_precio(19, 11, 'TOMOGRAFIA DE UN MAXILAR', 850, 1, '12510', 201, 3);
execute procedure alta_precio(19, 12, 'TOMOGRAFIA DE AMBOS MAXILARES', 1350, 1, '12510', 201, 3);
execute procedure alta_precio(19, 13, 'TOMOGRAFIA DE UN DIENTE', 560, 1, '12510', 201, 3);
execute procedure alta_precio(19, 14, 'TRAZO CEFALOMETRICO', 280, 1, '12510', 201, 3);
execute procedure alta_precio(19, 15, 'PAQUETE DE ORTODONCIA', 690, 1, '12510', 201, 3);
execute procedure alta_precio(19, 16, 'COPIA EN DISCO', 60, 1, '12510', 201, 3);
execute procedure alta_precio(19, 17, 'INTERPRETACION RADIOGRAFICA', 150, 1, '12510', 201, 3);
execute procedure alta_precio(19, 18, 'FOTOGRAFIAS INTRAORALES', 160, 1, '12510', 201, 3);

-- Services of the diplomas
execute procedure alta_precio(20, 1, 'CARILLA EN DIPLOMADO DE ESTETICA', 980, 1, '12510', 201, 3);
execute procedure alta_precio(20, 2, 'BLANQUEAMIENTO EN DIPLOMADO DE ESTETICA', 640, 1, '12510', 201, 3);
execute procedure alta_precio(20, 3, 'IMPLANTE EN DIPLOMADO DE IMPLANTOLOGIA', 4900, 1, '12510', 201, 3);
execute procedure alta_precio(20, 4, 'CORONA SOBRE IMPLANTE EN DIPLOMADO', 2600, 1, '12510', 201, 3);
execute procedure alta_precio(20, 5, 'ENDODONCIA MOLAR EN DIPLOMADO', 890, 1, '12510', 201, 3);
execute procedure alta_precio(20, 6, 'ENDODONCIA ANTERIOR EN DIPLOMADO', 620, 1, '12510', 201, 3);
execute procedure alta_precio(20, 7, 'ORTODONCIA EN DIPLOMADO MENSUALIDAD', 320, 1, '12510', 201, 3);
execute procedure alta_precio(20, 8, 'BRACKETS EN DIPLOMADO', 2400, 1, '12510', 201, 3);

-- Cleft lip and palate
execute procedure alta_precio(21, 1, 'CONSULTA DEL PROGRAMA', 50, 1, '12520', 251, 3);
execute procedure alta_precio(21, 2, 'PLACA OBTURADORA NEONATAL', 350, 1, '12520', 251, 3);
execute procedure alta_precio(21, 3, 'CONFORMADOR NASAL', 420, 1, '12520', 251, 3);
execute procedure alta_precio(21, 4, 'ORTOPEDIA PREQUIRURGICA MENSUALIDAD', 150, 1, '12520', 251, 3);
execute procedure alta_precio(21, 5, 'TERAPIA DE LENGUAJE POR SESION', 80, 5, '12520', 251, 3);
execute procedure alta_precio(21, 6, 'ESTUDIO MULTIDISCIPLINARIO', 200, 1, '12520', 251, 3);

-- Payments on account
execute procedure alta_precio(22, 1, 'ABONO A CUENTA', 0, 1, '', 401, 3);

-- Orthodontics: FACE 1 up to 14 years, FACE 2 from 15 on
execute procedure alta_precio(96, 1, 'CONSULTA DE ORTODONCIA', 150, 1, '12520', 251, 3);
execute procedure alta_precio(96, 2, 'ESTUDIO DE ORTODONCIA', 780, 1, '12520', 251, 3);
execute procedure alta_precio(96, 3, 'BRACKETS METALICOS POR ARCADA', 2400, 4, '12520', 251, 3);
execute procedure alta_precio(96, 4, 'BRACKETS ESTETICOS POR ARCADA', 3800, 4, '12520', 251, 3);
execute procedure alta_precio(96, 5, 'BRACKETS DE AUTOLIGADO POR ARCADA', 4500, 4, '12520', 251, 3);
execute procedure alta_precio(96, 6, 'MENSUALIDAD DE ORTODONCIA', 380, 1, '12520', 251, 3);
execute procedure alta_precio(96, 7, 'REPOSICION DE BRACKET', 140, 1, '12520', 251, 3);
execute procedure alta_precio(96, 8, 'REPOSICION DE BANDA', 190, 1, '12520', 251, 3);
execute procedure alta_precio(96, 9, 'CAMBIO DE ARCO', 160, 1, '12520', 251, 3);
execute procedure alta_precio(96, 10, 'ARCO LINGUAL', 780, 1, '12520', 251, 3);
execute procedure alta_precio(96, 11, 'BARRA TRANSPALATINA', 820, 1, '12520', 251, 3);
execute procedure alta_precio(96, 12, 'BOTON DE NANCE', 790, 1, '12520', 251, 3);
execute procedure alta_precio(96, 13, 'QUAD HELIX', 980, 1, '12520', 251, 3);
execute procedure alta_precio(96, 14, 'EXPANSOR HYRAX', 1850, 1, '12520', 251, 3);
execute procedure alta_precio(96, 15, 'EXPANSOR HAAS', 1800, 1, '12520', 251, 3);
execute procedure alta_precio(96, 16, 'MASCARA FACIAL', 1950, 1, '12520', 251, 3);
execute procedure alta_precio(96, 17, 'ARCO EXTRAORAL', 1450, 1, '12520', 251, 3);
execute procedure alta_precio(96, 18, 'LIP BUMPER', 860, 1, '12520', 251, 3);
execute procedure alta_precio(96, 19, 'MINITORNILLO', 1350, 1, '12520', 251, 3);
execute procedure alta_precio(96, 20, 'RETENEDOR CIRCUNFERENCIAL', 850, 1, '12520', 251, 3);
execute procedure alta_precio(96, 21, 'RETENEDOR FIJO', 680, 1, '12520', 251, 3);
execute procedure alta_precio(96, 22, 'PLACA HAWLEY', 780, 1, '12520', 251, 3);
execute procedure alta_precio(96, 23, 'POSICIONADOR', 1450, 1, '12520', 251, 3);
execute procedure alta_precio(96, 24, 'RETIRO DE APARATOLOGIA', 650, 1, '12520', 251, 3);
execute procedure alta_precio(96, 25, 'PULIDO POR ARCADA', 220, 4, '12520', 251, 3);
execute procedure alta_precio(96, 26, 'ALINEADORES POR ETAPA', 2900, 1, '12520', 251, 3);
execute procedure alta_precio(96, 27, 'SET UP DIGITAL', 1650, 1, '12520', 251, 3);
execute procedure alta_precio(96, 28, 'ORTODONCIA INTERCEPTIVA FACE 1', 6200, 1, '12520', 251, 3);
execute procedure alta_precio(96, 29, 'ORTODONCIA INTERCEPTIVA FACE 2', 7400, 1, '12520', 251, 3);
execute procedure alta_precio(96, 30, 'ORTODONCIA CORRECTIVA FACE 1', 9800, 1, '12520', 251, 3);
execute procedure alta_precio(96, 31, 'ORTODONCIA CORRECTIVA FACE 2', 12600, 1, '12520', 251, 3);
execute procedure alta_precio(96, 32, 'APARATOLOGIA REMOVIBLE FACE 1', 3200, 1, '12520', 251, 3);
execute procedure alta_precio(96, 33, 'ORTOPEDIA MAXILAR FACE 1', 5400, 1, '12520', 251, 3);
execute procedure alta_precio(96, 34, 'ORTOPEDIA MAXILAR FACE 2', 6800, 1, '12520', 251, 3);
execute procedure alta_precio(96, 35, 'CONTENCION AL TERMINO', 980, 1, '12520', 251, 3);

commit;

-- Costa Sur charges its own clinics a tenth less, without programmes of their own.
insert into listaprecios (codigo, cve_prod, descr, unimed, menudeo, prog, fecha_mov, subsubcta,
                          nomenclatura, tipodeiva, porcentajeiva, clasificacioniva, vigente,
                          claveprodserv, tipo_prod)
select (l.tipo_prod + 50) * 1000 + l.cve_prod, l.cve_prod, l.descr, l.unimed,
       round(l.menudeo * 0.9e0, 2), '', l.fecha_mov, l.subsubcta, l.nomenclatura, l.tipodeiva,
       l.porcentajeiva, l.clasificacioniva, l.vigente, l.claveprodserv, l.tipo_prod + 50
  from listaprecios l
 where l.tipo_prod in (1, 2, 3, 5, 6, 8)
    or (l.tipo_prod = 4 and l.cve_prod <= 120);

commit;
drop procedure alta_precio;
commit;
