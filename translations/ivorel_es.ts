<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nuevo proyecto…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open Project Fol&amp;der…</source>
        <translation>Abrir &amp;carpeta de proyecto…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>Save as Fo&amp;lder…</source>
        <translation>Guardar como carpe&amp;ta…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Document…</source>
        <translation>Documento…</translation>
    </message>
    <message>
        <source>Note…</source>
        <translation>Nota…</translation>
    </message>
    <message>
        <source>Document Inside</source>
        <translation>Documento dentro</translation>
    </message>
    <message>
        <source>Split Document at Cursor</source>
        <translation>Dividir el documento en el cursor</translation>
    </message>
    <message>
        <source>Move Document Up</source>
        <translation>Subir el documento</translation>
    </message>
    <message>
        <source>Move Document Down</source>
        <translation>Bajar el documento</translation>
    </message>
    <message>
        <source>Promote Document</source>
        <translation>Subir de nivel el documento</translation>
    </message>
    <message>
        <source>Demote</source>
        <translation>Bajar de nivel</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Restablecer la disposición</translation>
    </message>
    <message>
        <source>About Ivorel</source>
        <translation>Acerca de Ivorel</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>A&amp;pertura rápida…</translation>
    </message>
    <message>
        <source>Save as &amp;Template…</source>
        <translation>Guardar como p&amp;lantilla…</translation>
    </message>
    <message>
        <source>Save as Content &amp;Pack…</source>
        <translation>Guardar como paquete de contenido…</translation>
    </message>
    <message>
        <source>Apply &amp;Content Pack…</source>
        <translation>Aplicar un paq&amp;uete de contenido…</translation>
    </message>
    <message>
        <source>&amp;Back Up Project Now</source>
        <translation>&amp;Hacer copia de seguridad ahora</translation>
    </message>
    <message>
        <source>Check for E&amp;xternal Changes…</source>
        <translation>&amp;Buscar cambios externos…</translation>
    </message>
    <message>
        <source>Mounted &amp;Libraries…</source>
        <translation>Biblioteca&amp;s montadas…</translation>
    </message>
    <message>
        <source>Mana&amp;ge Audiences…</source>
        <translation>Gestionar p&amp;úblicos…</translation>
    </message>
    <message>
        <source>Open PD&amp;F…</source>
        <translation>Abrir PD&amp;F…</translation>
    </message>
    <message>
        <source>&amp;Plain Text…</source>
        <translation>&amp;Texto sin formato…</translation>
    </message>
    <message>
        <source>&amp;Obsidian Vault…</source>
        <translation>Bóveda de &amp;Obsidian…</translation>
    </message>
    <message>
        <source>&amp;yWriter…</source>
        <translation>&amp;yWriter…</translation>
    </message>
    <message>
        <source>Sc&amp;rivener…</source>
        <translation>Sc&amp;rivener…</translation>
    </message>
    <message>
        <source>&amp;Word Document…</source>
        <translation>Documento de &amp;Word…</translation>
    </message>
    <message>
        <source>&amp;Notion Export…</source>
        <translation>Exportación de &amp;Notion…</translation>
    </message>
    <message>
        <source>Import a Notion “Export → Markdown &amp; CSV” folder, preserving pages and folders</source>
        <translation>Importa una carpeta «Export → Markdown &amp; CSV» de Notion y conserva sus páginas y carpetas</translation>
    </message>
    <message>
        <source>&amp;Manuskript…</source>
        <translation>&amp;Manuskript…</translation>
    </message>
    <message>
        <source>Convert a &amp;Folder with AI…</source>
        <translation>Convertir una &amp;carpeta con IA…</translation>
    </message>
    <message>
        <source>Convert an entire folder of files into this project with your AI provider — entities, timeline, sheets, media, and more</source>
        <translation>Convierte una carpeta entera de archivos en este proyecto con su proveedor de IA: entidades, línea de tiempo, hojas, medios y más</translation>
    </message>
    <message>
        <source>&amp;Manuscript…</source>
        <translation>&amp;Manuscrito…</translation>
    </message>
    <message>
        <source>&amp;Screenplay…</source>
        <translation>&amp;Guion…</translation>
    </message>
    <message>
        <source>&amp;Website…</source>
        <translation>Sitio &amp;web…</translation>
    </message>
    <message>
        <source>&amp;Health Report…</source>
        <translation>&amp;Informe de estado…</translation>
    </message>
    <message>
        <source>Export a manuscript-health report — statistics, readability, dialogue balance, point-of-view balance, style issues, and world coverage — as Markdown or HTML</source>
        <translation>Exporta un informe del estado del manuscrito (estadísticas, legibilidad, equilibrio de diálogos y de puntos de vista, avisos de estilo y presencia del mundo) como Markdown o HTML</translation>
    </message>
    <message>
        <source>&amp;Clear Recent</source>
        <translation>&amp;Vaciar los recientes</translation>
    </message>
    <message>
        <source>Q&amp;uit</source>
        <translation>Sali&amp;r</translation>
    </message>
    <message>
        <source>&amp;Find &amp;&amp; Replace…</source>
        <translation>&amp;Buscar y reemplazar…</translation>
    </message>
    <message>
        <source>&amp;Replace…</source>
        <translation>Reem&amp;plazar…</translation>
    </message>
    <message>
        <source>Find in &amp;Project…</source>
        <translation>Buscar en el pro&amp;yecto…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>Pre&amp;ferencias…</translation>
    </message>
    <message>
        <source>Task for Document…</source>
        <translation>Tarea para el documento…</translation>
    </message>
    <message>
        <source>Change Kind…</source>
        <translation>Cambiar el tipo…</translation>
    </message>
    <message>
        <source>Show Unsupported Claims…</source>
        <translation>Mostrar afirmaciones sin fuente…</translation>
    </message>
    <message>
        <source>Version History…</source>
        <translation>Historial de versiones…</translation>
    </message>
    <message>
        <source>Next Mention</source>
        <translation>Mención siguiente</translation>
    </message>
    <message>
        <source>Previous Mention</source>
        <translation>Mención anterior</translation>
    </message>
    <message>
        <source>Today’s Note</source>
        <translation>Nota de hoy</translation>
    </message>
    <message>
        <source>&amp;Distraction-Free Mode</source>
        <translation>&amp;Modo sin distracciones</translation>
    </message>
    <message>
        <source>&amp;Page Layout View</source>
        <translation>Vista de &amp;página</translation>
    </message>
    <message>
        <source>&amp;Save Current Layout As…</source>
        <translation>&amp;Guardar la disposición actual como…</translation>
    </message>
    <message>
        <source>&amp;Delete Perspective…</source>
        <translation>&amp;Eliminar una perspectiva…</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation>Panel &amp;siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation>Panel &amp;anterior</translation>
    </message>
    <message>
        <source>AI &amp;Settings…</source>
        <translation>A&amp;justes de IA…</translation>
    </message>
    <message>
        <source>Configure your AI provider — endpoint, API key, and model</source>
        <translation>Configura su proveedor de IA: dirección, clave de API y modelo</translation>
    </message>
    <message>
        <source>Manage &amp;Personas…</source>
        <translation>Gestionar &amp;personajes de IA…</translation>
    </message>
    <message>
        <source>Manage AI &amp;Commands…</source>
        <translation>Gestionar ór&amp;denes de IA…</translation>
    </message>
    <message>
        <source>Add, edit, or remove reusable AI commands — named instructions you can apply to a selection, batch across documents, or chain</source>
        <translation>Añade, edita o elimina órdenes de IA reutilizables: instrucciones con nombre que se aplican a una selección, a varios documentos o en cadena</translation>
    </message>
    <message>
        <source>&amp;Build World Index</source>
        <translation>Crear el índice del &amp;mundo</translation>
    </message>
    <message>
        <source>As&amp;k Your World…</source>
        <translation>Preg&amp;untar a su mundo…</translation>
    </message>
    <message>
        <source>&amp;Find Similar Entities…</source>
        <translation>&amp;Buscar entidades parecidas…</translation>
    </message>
    <message>
        <source>Se&amp;mantic Search…</source>
        <translation>Búsqueda &amp;semántica…</translation>
    </message>
    <message>
        <source>Search your Codex by meaning or mood — type a phrase and find the most semantically related entities (needs a built World Index)</source>
        <translation>Busca en su códice por significado o ambiente: escriba una frase y encuentre las entidades más afines (requiere el índice del mundo)</translation>
    </message>
    <message>
        <source>Generate &amp;Codex from Manuscript…</source>
        <translation>Generar el &amp;códice desde el manuscrito…</translation>
    </message>
    <message>
        <source>Let AI read your manuscript and propose the worldbuilding entities it mentions but your Codex is missing — review the suggestions and add the ones you want</source>
        <translation>Deje que la IA lea su manuscrito y proponga las entidades que menciona y que faltan en su códice; revise las sugerencias y añada las que quiera</translation>
    </message>
    <message>
        <source>Ask an A&amp;gent…</source>
        <translation>Pedir a un a&amp;gente…</translation>
    </message>
    <message>
        <source>&amp;Generate Image…</source>
        <translation>Generar &amp;imagen…</translation>
    </message>
    <message>
        <source>Generate &amp;Speech…</source>
        <translation>Generar &amp;voz…</translation>
    </message>
    <message>
        <source>&amp;Apply AI Command…</source>
        <translation>&amp;Aplicar una orden de IA…</translation>
    </message>
    <message>
        <source>Batch AI Co&amp;mmand…</source>
        <translation>Orden de IA por &amp;lotes…</translation>
    </message>
    <message>
        <source>Run Command C&amp;hain…</source>
        <translation>Ejecutar una cade&amp;na de órdenes…</translation>
    </message>
    <message>
        <source>Token &amp;Usage…</source>
        <translation>Us&amp;o de tokens…</translation>
    </message>
    <message>
        <source>&amp;Welcome…</source>
        <translation>&amp;Bienvenida…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Buscar act&amp;ualizaciones…</translation>
    </message>
    <message>
        <source>Connect Claude &amp;Desktop…</source>
        <translation>Conectar Claude &amp;Desktop…</translation>
    </message>
    <message>
        <source>Bac&amp;kups…</source>
        <translation>Copias &amp;de seguridad…</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Recently &amp;Deleted…</source>
        <translation>&amp;Eliminado recientemente…</translation>
    </message>
    <message>
        <source>Unsaved &amp;Work…</source>
        <translation>Traba&amp;jo sin guardar…</translation>
    </message>
    <message>
        <source>&amp;Float Panel</source>
        <translation>Panel &amp;flotante</translation>
    </message>
    <message>
        <source>Doc&amp;k Floating Panels</source>
        <translation>Acoplar &amp;los paneles flotantes</translation>
    </message>
</context>
<context>
    <name>BatchMembers</name>
    <message>
        <source>The texts in "%1" must be strings.</source>
        <translation>Los textos de "%1" deben ser cadenas.</translation>
    </message>
</context>
<context>
    <name>ContentKinds</name>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Hoja de cálculo</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline event</source>
        <translation>Acontecimiento</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Random table</source>
        <translation>Tabla aleatoria</translation>
    </message>
    <message>
        <source>Stat block</source>
        <translation>Ficha de juego</translation>
    </message>
</context>
<context>
    <name>FieldTypes</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Sí o no</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Dirección web</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>The interface language will change to “%1” when you restart Ivorel.</source>
        <translation>El idioma de la interfaz cambiará a «%1» cuando reinicie Ivorel.</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Planificar</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Mundo</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Jugar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
</context>
<context>
    <name>PaletteWords</name>
    <message>
        <source>create, start, template</source>
        <translation>crear, empezar, plantilla</translation>
    </message>
    <message>
        <source>load</source>
        <translation>cargar</translation>
    </message>
    <message>
        <source>load directory</source>
        <translation>cargar directorio</translation>
    </message>
    <message>
        <source>command palette, go to, jump to, search</source>
        <translation>paleta de órdenes, ir a, saltar a, buscar</translation>
    </message>
    <message>
        <source>save a copy, duplicate project</source>
        <translation>guardar una copia, duplicar proyecto</translation>
    </message>
    <message>
        <source>export project, unpack</source>
        <translation>exportar proyecto, desempaquetar</translation>
    </message>
    <message>
        <source>backup, snapshot, safety copy</source>
        <translation>respaldo, instantánea, copia de seguridad</translation>
    </message>
    <message>
        <source>reload, sync, merge, conflicts</source>
        <translation>recargar, sincronizar, fusionar, conflictos</translation>
    </message>
    <message>
        <source>txt, markdown</source>
        <translation>txt, markdown</translation>
    </message>
    <message>
        <source>docx, doc</source>
        <translation>docx, doc</translation>
    </message>
    <message>
        <source>compile, publish, book, docx, epub, pdf, rtf, print</source>
        <translation>compilar, publicar, libro, docx, epub, pdf, rtf, imprimir</translation>
    </message>
    <message>
        <source>script, fountain, fdx</source>
        <translation>guion, fountain, fdx</translation>
    </message>
    <message>
        <source>wiki, html, publish</source>
        <translation>wiki, html, publicar</translation>
    </message>
    <message>
        <source>statistics, readability, report</source>
        <translation>estadísticas, legibilidad, informe</translation>
    </message>
    <message>
        <source>exit, close</source>
        <translation>salir, cerrar</translation>
    </message>
    <message>
        <source>take back, revert</source>
        <translation>revertir, volver atrás</translation>
    </message>
    <message>
        <source>repeat, again</source>
        <translation>repetir, otra vez</translation>
    </message>
    <message>
        <source>search</source>
        <translation>buscar</translation>
    </message>
    <message>
        <source>substitute, change all</source>
        <translation>sustituir, cambiar todo</translation>
    </message>
    <message>
        <source>search everywhere, global search, replace everywhere</source>
        <translation>buscar en todo, búsqueda global, reemplazar en todo</translation>
    </message>
    <message>
        <source>settings, options, configuration, shortcuts, font</source>
        <translation>ajustes, opciones, configuración, atajos, letra</translation>
    </message>
    <message>
        <source>new scene, new chapter, add</source>
        <translation>escena nueva, capítulo nuevo, añadir</translation>
    </message>
    <message>
        <source>new child, new scene in chapter</source>
        <translation>hijo nuevo, escena nueva en el capítulo</translation>
    </message>
    <message>
        <source>new note, add</source>
        <translation>nota nueva, añadir</translation>
    </message>
    <message>
        <source>cut, divide scene</source>
        <translation>cortar, dividir escena</translation>
    </message>
    <message>
        <source>outdent, move left</source>
        <translation>quitar sangría, mover a la izquierda</translation>
    </message>
    <message>
        <source>indent, nest, move right</source>
        <translation>sangrar, anidar, mover a la derecha</translation>
    </message>
    <message>
        <source>snapshots, drafts, revisions</source>
        <translation>instantáneas, borradores, revisiones</translation>
    </message>
    <message>
        <source>journal, diary, daily note</source>
        <translation>diario, nota diaria</translation>
    </message>
    <message>
        <source>focus mode, zen, full screen, composition mode</source>
        <translation>modo concentración, zen, pantalla completa</translation>
    </message>
    <message>
        <source>print preview, pages</source>
        <translation>vista previa de impresión, páginas</translation>
    </message>
    <message>
        <source>restore panels, default windows</source>
        <translation>restaurar paneles, ventanas iniciales</translation>
    </message>
    <message>
        <source>workspace, perspective</source>
        <translation>espacio de trabajo, perspectiva</translation>
    </message>
    <message>
        <source>start page, tutorial, sample, example</source>
        <translation>página de inicio, tutorial, ejemplo</translation>
    </message>
    <message>
        <source>upgrade, new version</source>
        <translation>actualizar, versión nueva</translation>
    </message>
    <message>
        <source>version, licence, credits, folders</source>
        <translation>versión, licencia, créditos, carpetas</translation>
    </message>
    <message>
        <source>detach, undock, own window</source>
        <translation>desacoplar, separar, ventana propia</translation>
    </message>
    <message>
        <source>attach, put back</source>
        <translation>acoplar, devolver a su sitio</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Panel area button</source>
        <translation>Botón del área de paneles</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Códice</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Datos del documento</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Corkboard</source>
        <translation>Corcho</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Tablero</translation>
    </message>
    <message>
        <source>Submissions</source>
        <translation>Envíos</translation>
    </message>
    <message>
        <source>Agenda</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galería</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Script Console</source>
        <translation>Consola de scripts</translation>
    </message>
    <message>
        <source>AI Chat</source>
        <translation>Chat de IA</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Plot Threads</source>
        <translation>Tramas</translation>
    </message>
    <message>
        <source>Beat Sheet</source>
        <translation>Escaleta</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Relationships</source>
        <translation>Relaciones</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Hoja de cálculo</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>Pacing</source>
        <translation>Ritmo</translation>
    </message>
    <message>
        <source>POV Balance</source>
        <translation>Equilibrio de PDV</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Genre Tools</source>
        <translation>Herramientas de género</translation>
    </message>
    <message>
        <source>Random Tables</source>
        <translation>Tablas aleatorias</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Stat Blocks</source>
        <translation>Fichas de juego</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Notas al pie</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflictos</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fijados</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
</context>
<context>
    <name>ProjectTemplates</name>
    <message>
        <source>Blank</source>
        <translation>En blanco</translation>
    </message>
    <message>
        <source>Nothing but room to write.</source>
        <translation>Nada más que sitio para escribir.</translation>
    </message>
    <message>
        <source>Novel</source>
        <translation>Novela</translation>
    </message>
    <message>
        <source>Three acts with chapters and scenes on a beat sheet, sheets for characters and places, plot threads, and a list for the revision.</source>
        <translation>Tres actos con capítulos y escenas en una escaleta, fichas de personajes y lugares, tramas y una lista para la revisión.</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Several books over one world: what is settled, what is promised, and how each character stands at the end of each book.</source>
        <translation>Varios libros sobre un mundo: lo que está fijado, lo que se promete y cómo queda cada personaje al final de cada libro.</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Sequences in screenplay form, logline and treatment, cast and locations.</source>
        <translation>Secuencias en formato de guion, logline y tratamiento, reparto y localizaciones.</translation>
    </message>
    <message>
        <source>Tabletop Campaign</source>
        <translation>Campaña de rol</translation>
    </message>
    <message>
        <source>Sessions, quests and factions, secrets that only the game master sees, and random tables.</source>
        <translation>Sesiones, misiones y facciones, secretos que solo ve quien dirige el juego y tablas aleatorias.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta de archivos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Disminuir</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Abrir la lista desplegable</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encuentra la carpeta.
Compruebe que el nombre de la carpeta es correcto.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se encuentra el archivo.
Compruebe que el nombre del archivo es correcto.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Carpeta &amp;nueva</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar el nombre</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escritura.
¿Quiere eliminarlo de todos modos?</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>¿Seguro que quiere eliminar «%1»?</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mostrar los detalles</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mostrar como lista</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>No se pudo eliminar la carpeta.</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta nueva</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta nueva</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista de detalles</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre del archivo:</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta de archivos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Buscar carpeta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de lugares y marcadores</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mi equipo</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Lugares recientes</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar los archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mi equipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>QFontDatabase</name>
    <message>
        <source>Black</source>
        <translation>Negra</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Demi Bold</source>
        <translation>Seminegrita</translation>
    </message>
    <message>
        <source>Extra</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>Extra Bold</source>
        <translation>Extranegrita</translation>
    </message>
    <message>
        <source>Extra Light</source>
        <translation>Extrafina</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fina</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>%1, ...</source>
        <translation>%1, …</translation>
    </message>
    <message>
        <source>Press shortcut</source>
        <translation>Pulse el atajo</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Close Active Tab</source>
        <translation>Cerrar la pestaña activa</translation>
    </message>
    <message>
        <source>Close Group</source>
        <translation>Cerrar el grupo</translation>
    </message>
    <message>
        <source>Close Other Groups</source>
        <translation>Cerrar los demás grupos</translation>
    </message>
    <message>
        <source>Close Others</source>
        <translation>Cerrar las demás</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Cerrar la pestaña</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Separar</translation>
    </message>
    <message>
        <source>Detach Group</source>
        <translation>Separar el grupo</translation>
    </message>
    <message>
        <source>List All Tabs</source>
        <translation>Mostrar todas las pestañas</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Tab atrás</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>Bloq Mayús</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Hogar</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>Bloq Num</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>AvPág</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>RePág</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impr Pant</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>Bloq Despl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>PetSis</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar la dirección del en&amp;lace</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>Themes</name>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
</context>
<context>
    <name>vl::app::Assets</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>No se puede crear la carpeta del proyecto: %1</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::AutoBackups</name>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>La carpeta del proyecto no existe: %1</translation>
    </message>
    <message>
        <source>The backup does not hold what was written: %1</source>
        <translation>La copia de seguridad no contiene lo que se escribió: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>No se pudo crear la carpeta para: %1</translation>
    </message>
    <message>
        <source>There is not enough room for a backup in: %1</source>
        <translation>No hay espacio suficiente para una copia de seguridad en: %1</translation>
    </message>
    <message>
        <source>The folder for backups does not exist: %1</source>
        <translation>La carpeta de las copias de seguridad no existe: %1</translation>
    </message>
    <message>
        <source>The folder for backups lies in the project itself: %1</source>
        <translation>La carpeta de las copias de seguridad está dentro del propio proyecto: %1</translation>
    </message>
    <message>
        <source>A project that is open cannot be replaced: %1</source>
        <translation>No se puede reemplazar un proyecto abierto: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupFolder</name>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>No se pudo crear la carpeta para: %1</translation>
    </message>
    <message>
        <source>Could not clear the stale working copy: %1</source>
        <translation>No se pudo borrar la copia de trabajo anticuada: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupOperations</name>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurar «%1»</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupsModel</name>
    <message>
        <source>When opened</source>
        <translation>Al abrir</translation>
    </message>
    <message>
        <source>When closed</source>
        <translation>Al cerrar</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Una vez al día</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>Before something took its place</source>
        <translation>Antes de ser sustituido</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañada</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Hecha</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Escenas</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
</context>
<context>
    <name>vl::app::Bundle</name>
    <message>
        <source>Could not write the project file: %1</source>
        <translation>No se pudo escribir el archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>No se pudo abrir el archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Not a valid Ivorel project file: %1</source>
        <translation>No es un archivo de proyecto de Ivorel válido: %1</translation>
    </message>
    <message>
        <source>The folder is not an Ivorel project (no project.json): %1</source>
        <translation>La carpeta no es un proyecto de Ivorel (falta project.json): %1</translation>
    </message>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>No se pudo leer un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>The project has more than one file can hold (65535 files, 4 GiB); save it as a folder instead. The file was left as it is: %1</source>
        <translation>El proyecto tiene más de lo que cabe en un archivo (65535 archivos, 4 GiB); guárdelo como carpeta. El archivo se dejó como estaba: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>No se pudo crear la carpeta para: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>No se pudo escribir un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>The extraction folder is not empty: %1</source>
        <translation>La carpeta de extracción no está vacía: %1</translation>
    </message>
    <message>
        <source>Could not create the folder: %1</source>
        <translation>No se pudo crear la carpeta: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BundleProjectStore</name>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>El proyecto cambió fuera de Ivorel desde que lo abrió.</translation>
    </message>
    <message>
        <source>The project file is gone: %1</source>
        <translation>El archivo del proyecto ya no está: %1</translation>
    </message>
    <message>
        <source>%1 The file as it was before its unsaved changes were put back is kept as: %2</source>
        <translation>%1 El archivo tal como estaba antes de recuperar sus cambios sin guardar se conserva como: %2</translation>
    </message>
</context>
<context>
    <name>vl::app::CalendarText</name>
    <message>
        <source>%1 %2, Year %3</source>
        <extracomment>A full date: %1 is the day, %2 the month, %3 the year. Typed dates are read back from this form, so keep the word for "Year" equal to the one translated below.</extracomment>
        <translation>%1 %2, Year %3</translation>
    </message>
    <message>
        <source>Year</source>
        <extracomment>The word before the year in a full date such as "3 March, Year 1270".</extracomment>
        <translation>Year</translation>
    </message>
</context>
<context>
    <name>vl::app::CampaignTemplate</name>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Player characters</source>
        <translation>Personajes jugadores</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Bonds</source>
        <translation>Vínculos</translation>
    </message>
    <message>
        <source>Whom and what they would not give up.</source>
        <translation>A quién y a qué no renunciarían.</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Other characters</source>
        <translation>Otros personajes</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>Actitud</translation>
    </message>
    <message>
        <source>Friendly</source>
        <translation>Amistosa</translation>
    </message>
    <message>
        <source>Indifferent</source>
        <translation>Indiferente</translation>
    </message>
    <message>
        <source>Hostile</source>
        <translation>Hostil</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>One sentence that you can play at the table.</source>
        <translation>Una frase que pueda interpretar en la mesa.</translation>
    </message>
    <message>
        <source>Wants</source>
        <translation>Quiere</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Found at</source>
        <translation>Se encuentra en</translation>
    </message>
    <message>
        <source>A place of the codex.</source>
        <translation>Un lugar del códice.</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Settlement</source>
        <translation>Población</translation>
    </message>
    <message>
        <source>Dungeon</source>
        <translation>Mazmorra</translation>
    </message>
    <message>
        <source>Landmark</source>
        <translation>Hito</translation>
    </message>
    <message>
        <source>Lies in</source>
        <translation>Está en</translation>
    </message>
    <message>
        <source>Read aloud</source>
        <translation>Para leer en voz alta</translation>
    </message>
    <message>
        <source>Two or three sentences for the players.</source>
        <translation>Dos o tres frases para los jugadores.</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Peligro</translation>
    </message>
    <message>
        <source>What is hidden here</source>
        <translation>Lo que se oculta aquí</translation>
    </message>
    <message>
        <source>Factions</source>
        <translation>Facciones</translation>
    </message>
    <message>
        <source>Means</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Next move</source>
        <translation>Próximo movimiento</translation>
    </message>
    <message>
        <source>What happens if the players do nothing.</source>
        <translation>Qué pasa si los jugadores no hacen nada.</translation>
    </message>
    <message>
        <source>Led by</source>
        <translation>Dirigida por</translation>
    </message>
    <message>
        <source>A person of the codex.</source>
        <translation>Una persona del códice.</translation>
    </message>
    <message>
        <source>Quests</source>
        <translation>Misiones</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Rumour</source>
        <translation>Rumor</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Aceptada</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fracasada</translation>
    </message>
    <message>
        <source>Given by</source>
        <translation>Encargada por</translation>
    </message>
    <message>
        <source>Reward</source>
        <translation>Recompensa</translation>
    </message>
    <message>
        <source>Twist</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Rarity</source>
        <translation>Rareza</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Común</translation>
    </message>
    <message>
        <source>Uncommon</source>
        <translation>Poco común</translation>
    </message>
    <message>
        <source>Rare</source>
        <translation>Raro</translation>
    </message>
    <message>
        <source>Unique</source>
        <translation>Único</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>Carried by</source>
        <translation>Lo lleva</translation>
    </message>
    <message>
        <source>Gods and lore</source>
        <translation>Dioses y saberes</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>What everybody knows</source>
        <translation>Lo que todos saben</translation>
    </message>
    <message>
        <source>What is true</source>
        <translation>Lo que es verdad</translation>
    </message>
    <message>
        <source>At the table</source>
        <translation>En la mesa</translation>
    </message>
    <message>
        <source>Session zero</source>
        <translation>Sesión cero</translation>
    </message>
    <message>
        <source>- Tone and theme:
- Lines and veils:
- House rules:
- How often, how long:
- Why the characters travel together:</source>
        <translation>- Tono y tema:
- Límites y velos:
- Reglas de la casa:
- Con qué frecuencia, cuánto tiempo:
- Por qué los personajes viajan juntos:</translation>
    </message>
    <message>
        <source>House rules</source>
        <translation>Reglas de la casa</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Secretos</translation>
    </message>
    <message>
        <source>What the players do not know yet, and how they may find it out.

- </source>
        <translation>Lo que los jugadores aún no saben y cómo pueden averiguarlo.

- </translation>
    </message>
    <message>
        <source>Chronicle</source>
        <translation>Crónica</translation>
    </message>
    <message>
        <source>What happened, session by session, as the players would tell it.</source>
        <translation>Lo que pasó, sesión a sesión, tal como lo contarían los jugadores.</translation>
    </message>
    <message>
        <source>Session 1</source>
        <translation>Sesión 1</translation>
    </message>
    <message>
        <source>Preparation</source>
        <translation>Preparación</translation>
    </message>
    <message>
        <source>Plan for session 1</source>
        <translation>Plan de la sesión 1</translation>
    </message>
    <message>
        <source># Strong start

# Scenes that may happen

- 

# Secrets and clues

- 

# Places

- 

# Characters

- 

# Rewards

- </source>
        <translation># Comienzo con fuerza

# Escenas que pueden darse

- 

# Secretos y pistas

- 

# Lugares

- 

# Personajes

- 

# Recompensas

- </translation>
    </message>
    <message>
        <source>Game master</source>
        <translation>Dirección de juego</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Jugadores</translation>
    </message>
    <message>
        <source>The great threat</source>
        <translation>La gran amenaza</translation>
    </message>
    <message>
        <source>What comes nearer with each session.</source>
        <translation>Lo que se acerca con cada sesión.</translation>
    </message>
    <message>
        <source>The characters’ own stories</source>
        <translation>Las historias de los personajes</translation>
    </message>
    <message>
        <source>What each of them came for.</source>
        <translation>Lo que cada uno vino a buscar.</translation>
    </message>
    <message>
        <source>On the road</source>
        <translation>En el camino</translation>
    </message>
    <message>
        <source>A bridge with a toll that nobody set</source>
        <translation>Un puente con un peaje que nadie puso</translation>
    </message>
    <message>
        <source>Travellers with a sick child</source>
        <translation>Viajeros con un niño enfermo</translation>
    </message>
    <message>
        <source>Tracks that end in the middle of a field</source>
        <translation>Huellas que terminan en medio de un campo</translation>
    </message>
    <message>
        <source>A storm by nightfall</source>
        <translation>Una tormenta al anochecer</translation>
    </message>
    <message>
        <source>A patrol that looks for somebody like you</source>
        <translation>Una patrulla que busca a alguien como vosotros</translation>
    </message>
    <message>
        <source>An old shrine with fresh flowers</source>
        <translation>Un viejo santuario con flores frescas</translation>
    </message>
    <message>
        <source>Rumours in the tavern</source>
        <translation>Rumores en la taberna</translation>
    </message>
    <message>
        <source>The mill turns at night though there is no wind</source>
        <translation>El molino gira de noche aunque no hay viento</translation>
    </message>
    <message>
        <source>Somebody buys every map of the hills</source>
        <translation>Alguien compra todos los mapas de las colinas</translation>
    </message>
    <message>
        <source>The old lord was seen, a year after his burial</source>
        <translation>Han visto al viejo señor, un año después de su entierro</translation>
    </message>
    <message>
        <source>The well tastes of iron since the new moon</source>
        <translation>El pozo sabe a hierro desde la luna nueva</translation>
    </message>
    <message>
        <source>Town guard</source>
        <translation>Guardia de la ciudad</translation>
    </message>
    <message>
        <source>Calls for help before drawing a weapon.</source>
        <translation>Pide ayuda antes de desenvainar.</translation>
    </message>
    <message>
        <source>Armour</source>
        <translation>Armadura</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Spear</source>
        <translation>Lanza</translation>
    </message>
    <message>
        <source>Before the next session</source>
        <translation>Antes de la próxima sesión</translation>
    </message>
    <message>
        <source>Read the notes of the last session</source>
        <translation>Leer las notas de la última sesión</translation>
    </message>
    <message>
        <source>Decide what each faction does next</source>
        <translation>Decidir qué hace después cada facción</translation>
    </message>
    <message>
        <source>Prepare a strong start</source>
        <translation>Preparar un comienzo con fuerza</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexMerge</name>
    <message>
        <source>Merge entities</source>
        <translation>Fusionar entidades</translation>
    </message>
    <message>
        <source>Split entity</source>
        <translation>Dividir entidad</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexModel</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message numerus="yes">
        <source>%1, category, %n entity(ies)</source>
        <translation>
            <numerusform>%1, categoría, %n entidad</numerusform>
            <numerusform>%1, categoría, %n entidades</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, pinned</source>
        <translation>%1, fijado</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entidad</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message>
        <source>Also: %1</source>
        <translation>También: %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexOperations</name>
    <message>
        <source>New Category</source>
        <translation>Categoría nueva</translation>
    </message>
    <message>
        <source>New Entity</source>
        <translation>Entidad nueva</translation>
    </message>
    <message>
        <source>Add entity</source>
        <translation>Añadir entidad</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Añadir tarea</translation>
    </message>
    <message>
        <source>Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.</source>
        <translation>¿Eliminar «%1»? Sus entidades pasan a la categoría superior. Edición › Deshacer la recupera.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>¿Eliminar «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>%n category(ies)</source>
        <translation>
            <numerusform>%n categoría</numerusform>
            <numerusform>%n categorías</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entidad</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1 and %2?</source>
        <translation>¿Eliminar %1 y %2?</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>¿Eliminar %1?</translation>
    </message>
    <message>
        <source>Edit › Undo will restore it.</source>
        <translation>Edición › Deshacer lo recupera.</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies) move up.</source>
        <translation>
            <numerusform>%n entidad sube de nivel.</numerusform>
            <numerusform>%n entidades suben de nivel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Row(s)</source>
        <translation>
            <numerusform>Eliminar %n fila</numerusform>
            <numerusform>Eliminar %n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Category(ies)</source>
        <translation>
            <numerusform>Eliminar %n categoría</numerusform>
            <numerusform>Eliminar %n categorías</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Entity(ies)</source>
        <translation>
            <numerusform>Eliminar %n entidad</numerusform>
            <numerusform>Eliminar %n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n entity(ies)</source>
        <translation>
            <numerusform>Eliminar %n entidad</numerusform>
            <numerusform>Eliminar %n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n category(ies)</source>
        <translation>
            <numerusform>Eliminar %n categoría</numerusform>
            <numerusform>Eliminar %n categorías</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete from the codex</source>
        <translation>Eliminar del códice</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n entity(ies)</source>
        <translation>
            <numerusform>Duplicar %n entidad</numerusform>
            <numerusform>Duplicar %n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n codex row(s)</source>
        <translation>
            <numerusform>Mover %n fila del códice</numerusform>
            <numerusform>Mover %n filas del códice</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n entity(ies)</source>
        <translation>
            <numerusform>Pegar %n entidad</numerusform>
            <numerusform>Pegar %n entidades</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::app::ContinuityChecker</name>
    <message>
        <source>An entity</source>
        <translation>Una entidad</translation>
    </message>
    <message>
        <source>Untitled event</source>
        <translation>Acontecimiento sin título</translation>
    </message>
    <message>
        <source>"%1" happens at a location that no longer exists.</source>
        <translation>"%1" ocurre en un lugar que ya no existe.</translation>
    </message>
    <message>
        <source>"%1" lists a participant that no longer exists.</source>
        <translation>"%1" incluye a un participante que ya no existe.</translation>
    </message>
    <message>
        <source>%1 is in two places at once: "%2" and "%3".</source>
        <translation>%1 está en dos lugares a la vez: "%2" y "%3".</translation>
    </message>
    <message>
        <source>%1 takes part in "%2" before being born.</source>
        <translation>%1 participa en "%2" antes de nacer.</translation>
    </message>
    <message>
        <source>%1 takes part in "%2" after death.</source>
        <translation>%1 participa en "%2" después de morir.</translation>
    </message>
    <message>
        <source>%1 cannot travel from %2 to %3 in time between "%4" and "%5".</source>
        <translation>%1 no puede viajar a tiempo de %2 a %3 entre "%4" y "%5".</translation>
    </message>
    <message>
        <source>must start after</source>
        <translation>debe empezar después de</translation>
    </message>
    <message>
        <source>must end before</source>
        <translation>debe terminar antes de</translation>
    </message>
    <message>
        <source>must happen during</source>
        <translation>debe ocurrir durante</translation>
    </message>
    <message>
        <source>"%1" %2 "%3", but does not.</source>
        <extracomment>%1 and %3 are titles of events, %2 is one of the phrases "must start after" and so on.</extracomment>
        <translation>"%1" %2 "%3", pero no es así.</translation>
    </message>
    <message>
        <source>Rule "%1" refers to an entity that is no longer in the project.</source>
        <translation>La regla "%1" se refiere a una entidad que ya no está en el proyecto.</translation>
    </message>
    <message>
        <source>Rule "%1": %2's %3 %4 "%5", but is "%6".</source>
        <translation>Regla "%1": %3 de %2 %4 "%5", pero es "%6".</translation>
    </message>
    <message>
        <source>must not be</source>
        <translation>no debe ser</translation>
    </message>
    <message>
        <source>must be</source>
        <translation>debe ser</translation>
    </message>
    <message>
        <source>(unset)</source>
        <translation>(sin valor)</translation>
    </message>
</context>
<context>
    <name>vl::app::DeletedStore</name>
    <message>
        <source>What was deleted could not be kept: %1</source>
        <translation>No se pudo conservar lo eliminado: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::DocumentOperations</name>
    <message>
        <source>Add note</source>
        <translation>Añadir nota</translation>
    </message>
    <message>
        <source>Add document</source>
        <translation>Añadir documento</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>Nota nueva</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Documento nuevo</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n nota</numerusform>
            <numerusform>%n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n documento</numerusform>
            <numerusform>%n documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scene(s)</source>
        <translation>
            <numerusform>%n escena</numerusform>
            <numerusform>%n escenas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n word(s)</source>
        <comment>with the number written out by the program</comment>
        <translation>
            <numerusform>%n palabra</numerusform>
            <numerusform>%n palabras</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1, %2?</source>
        <translation>¿Eliminar %1 (%2)?</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n document(s)</source>
        <translation>
            <numerusform>Eliminar %n documento</numerusform>
            <numerusform>Eliminar %n documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n document(s)</source>
        <translation>
            <numerusform>Mover %n documento</numerusform>
            <numerusform>Mover %n documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Promote %n document(s)</source>
        <translation>
            <numerusform>Subir de nivel %n documento</numerusform>
            <numerusform>Subir de nivel %n documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Demote %n document(s)</source>
        <translation>
            <numerusform>Bajar de nivel %n documento</numerusform>
            <numerusform>Bajar de nivel %n documentos</numerusform>
        </translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation>Cambiar el tipo de documento</translation>
    </message>
    <message>
        <source>Split document</source>
        <translation>Dividir documento</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuación)</translation>
    </message>
</context>
<context>
    <name>vl::app::DocumentsModel</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n word(s)</source>
        <translation>
            <numerusform>%1, %n palabra</numerusform>
            <numerusform>%1, %n palabras</numerusform>
        </translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>vl::app::ExternalChangesModel</name>
    <message>
        <source>Project settings and lists</source>
        <translation>Ajustes y listas del proyecto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Qué pasó</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Decisión</translation>
    </message>
    <message>
        <source>A sync client's second version of it</source>
        <translation>Una segunda versión suya, de un cliente de sincronización</translation>
    </message>
    <message>
        <source>The same on both sides</source>
        <translation>Igual en ambos lados</translation>
    </message>
    <message>
        <source>Changed by you</source>
        <translation>Cambiado por usted</translation>
    </message>
    <message>
        <source>Changed on disk</source>
        <translation>Cambiado en el disco</translation>
    </message>
    <message>
        <source>Changed by you and on disk</source>
        <translation>Cambiado por usted y en el disco</translation>
    </message>
    <message>
        <source>Added by you</source>
        <translation>Añadido por usted</translation>
    </message>
    <message>
        <source>Added on disk</source>
        <translation>Añadido en el disco</translation>
    </message>
    <message>
        <source>Added by you and on disk</source>
        <translation>Añadido por usted y en el disco</translation>
    </message>
    <message>
        <source>Deleted by you</source>
        <translation>Eliminado por usted</translation>
    </message>
    <message>
        <source>Deleted on disk</source>
        <translation>Eliminado en el disco</translation>
    </message>
    <message>
        <source>Changed by you, deleted on disk</source>
        <translation>Cambiado por usted, eliminado en el disco</translation>
    </message>
    <message>
        <source>Deleted by you, changed on disk</source>
        <translation>Eliminado por usted, cambiado en el disco</translation>
    </message>
    <message>
        <source>⚠ To be decided</source>
        <translation>⚠ Por decidir</translation>
    </message>
    <message>
        <source>Keep your version</source>
        <translation>Conservar su versión</translation>
    </message>
    <message>
        <source>Stays deleted</source>
        <translation>Sigue eliminado</translation>
    </message>
    <message>
        <source>Take the on-disk version</source>
        <translation>Tomar la versión del disco</translation>
    </message>
    <message>
        <source>Delete it here too</source>
        <translation>Eliminarlo también aquí</translation>
    </message>
    <message>
        <source>Both, merged</source>
        <translation>Ambos, fusionados</translation>
    </message>
    <message>
        <source>Both, edited by you</source>
        <translation>Ambos, editados por usted</translation>
    </message>
    <message>
        <source>There are still lines with marks in the text.</source>
        <translation>Aún hay líneas con marcas en el texto.</translation>
    </message>
</context>
<context>
    <name>vl::app::FieldSuggestions</name>
    <message>
        <source>character;people;person;cast</source>
        <comment>parts of the names of categories that hold characters</comment>
        <translation>personaje;personas;persona;gente;reparto</translation>
    </message>
</context>
<context>
    <name>vl::app::FileMerge</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>Not a text file, so it cannot be merged: %1</source>
        <translation>No es un archivo de texto y no se puede fusionar: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderMerge</name>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>La carpeta del proyecto no existe: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>The output folder is not empty: %1</source>
        <translation>La carpeta de salida no está vacía: %1</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>No se puede crear la carpeta del proyecto: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderReader</name>
    <message>
        <source>Skipped a hidden file: %1</source>
        <translation>Se omitió un archivo oculto: %1</translation>
    </message>
    <message>
        <source>Skipped a link: %1</source>
        <translation>Se omitió un enlace: %1</translation>
    </message>
    <message>
        <source>Skipped a folder that lies too deep: %1</source>
        <translation>Se omitió una carpeta demasiado profunda: %1</translation>
    </message>
    <message>
        <source>Skipped, not a text file: %1</source>
        <translation>Omitido, no es un archivo de texto: %1</translation>
    </message>
    <message>
        <source>Skipped, too much was read already: %1</source>
        <translation>Omitido, ya se leyó demasiado: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot read folder: %1</source>
        <translation>No se puede leer la carpeta: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderWriter</name>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>El proyecto cambió fuera de Ivorel desde que lo abrió.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>No se puede crear la carpeta del proyecto: %1</translation>
    </message>
    <message>
        <source>Cannot create taxonomy folder: %1</source>
        <translation>No se puede crear la carpeta de categorías: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>La carpeta del proyecto no existe: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::HealthReport</name>
    <message>
        <source>%1 (%2 words)</source>
        <translation>%1 (%2 palabras)</translation>
    </message>
    <message>
        <source>Untitled (%1)</source>
        <translation>Sin título (%1)</translation>
    </message>
    <message>
        <source>Manuscript health report</source>
        <translation>Informe sobre el estado del manuscrito</translation>
    </message>
    <message>
        <source>Manuscript health report: %1</source>
        <translation>Informe sobre el estado del manuscrito: %1</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Escenas</translation>
    </message>
    <message>
        <source>Documents without text</source>
        <translation>Documentos sin texto</translation>
    </message>
    <message>
        <source>Average scene</source>
        <translation>Escena media</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 palabras</translation>
    </message>
    <message>
        <source>Median scene</source>
        <translation>Escena mediana</translation>
    </message>
    <message>
        <source>Longest scene</source>
        <translation>Escena más larga</translation>
    </message>
    <message>
        <source>Shortest scene</source>
        <translation>Escena más corta</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Tiempo de lectura</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Manuscript pages</source>
        <translation>Páginas de manuscrito</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Párrafos</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>(no status)</source>
        <translation>(sin estado)</translation>
    </message>
    <message>
        <source>Dialogue and narration</source>
        <translation>Diálogo y narración</translation>
    </message>
    <message>
        <source>There is no prose to measure.</source>
        <translation>No hay prosa que medir.</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Diálogo</translation>
    </message>
    <message>
        <source>%1 words (%2)</source>
        <translation>%1 palabras (%2)</translation>
    </message>
    <message>
        <source>Narration</source>
        <translation>Narración</translation>
    </message>
    <message>
        <source>Passages of speech</source>
        <translation>Pasajes de habla</translation>
    </message>
    <message>
        <source>Words in a passage</source>
        <translation>Palabras por pasaje</translation>
    </message>
    <message>
        <source>Scenes without dialogue</source>
        <translation>Escenas sin diálogo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Most dialogue</source>
        <translation>Más diálogo</translation>
    </message>
    <message>
        <source>Least dialogue</source>
        <translation>Menos diálogo</translation>
    </message>
    <message>
        <source>very easy</source>
        <translation>muy fácil</translation>
    </message>
    <message>
        <source>easy</source>
        <translation>fácil</translation>
    </message>
    <message>
        <source>fairly easy</source>
        <translation>bastante fácil</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>normal</translation>
    </message>
    <message>
        <source>fairly hard</source>
        <translation>bastante difícil</translation>
    </message>
    <message>
        <source>hard</source>
        <translation>difícil</translation>
    </message>
    <message>
        <source>very hard</source>
        <translation>muy difícil</translation>
    </message>
    <message>
        <source>Readability</source>
        <translation>Legibilidad</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Frases</translation>
    </message>
    <message>
        <source>Words in a sentence</source>
        <translation>Palabras por frase</translation>
    </message>
    <message>
        <source>Longest sentence</source>
        <translation>Frase más larga</translation>
    </message>
    <message>
        <source>Sentences in a paragraph</source>
        <translation>Frases por párrafo</translation>
    </message>
    <message>
        <source>Syllables in a word</source>
        <translation>Sílabas por palabra</translation>
    </message>
    <message>
        <source>Words of three syllables or more</source>
        <translation>Palabras de tres sílabas o más</translation>
    </message>
    <message>
        <source>Flesch reading ease</source>
        <translation>Facilidad de lectura de Flesch</translation>
    </message>
    <message>
        <source>Flesch–Kincaid grade</source>
        <translation>Grado de Flesch-Kincaid</translation>
    </message>
    <message>
        <source>Gunning fog index</source>
        <translation>Índice de niebla de Gunning</translation>
    </message>
    <message>
        <source>Easiest scene</source>
        <translation>Escena más fácil</translation>
    </message>
    <message>
        <source>Hardest scene</source>
        <translation>Escena más difícil</translation>
    </message>
    <message>
        <source>Point-of-view balance</source>
        <translation>Equilibrio de puntos de vista</translation>
    </message>
    <message>
        <source>No scene names a point of view.</source>
        <translation>Ninguna escena indica un punto de vista.</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Punto de vista</translation>
    </message>
    <message>
        <source>Longest run</source>
        <translation>Serie más larga</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>The longest run counts scenes in a row from one point of view.</source>
        <translation>La serie más larga cuenta las escenas seguidas desde un mismo punto de vista.</translation>
    </message>
    <message>
        <source>World coverage</source>
        <translation>Presencia del mundo</translation>
    </message>
    <message>
        <source>The codex has no entities.</source>
        <translation>El códice no tiene entidades.</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Mentioned</source>
        <translation>Mencionadas</translation>
    </message>
    <message>
        <source>Never mentioned</source>
        <translation>Nunca mencionadas</translation>
    </message>
    <message>
        <source>Without a category</source>
        <translation>Sin categoría</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menciones</translation>
    </message>
    <message>
        <source>First scene</source>
        <translation>Primera escena</translation>
    </message>
    <message>
        <source>Last scene</source>
        <translation>Última escena</translation>
    </message>
    <message>
        <source>Never mentioned: %1</source>
        <translation>Nunca mencionadas: %1</translation>
    </message>
    <message>
        <source>Writing style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>No style issues flagged.</source>
        <translation>No hay avisos de estilo.</translation>
    </message>
    <message>
        <source>| Category | Issues |</source>
        <translation>| Categoría | Avisos |</translation>
    </message>
    <message>
        <source>| **Total** | %1 |</source>
        <translation>| **Total** | %1 |</translation>
    </message>
</context>
<context>
    <name>vl::app::Import</name>
    <message>
        <source>Import documents</source>
        <translation>Importar documentos</translation>
    </message>
</context>
<context>
    <name>vl::app::InspectorForms</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Aliases</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Other names, under which the manuscript may speak of it.</source>
        <translation>Otros nombres con los que el manuscrito puede mencionarla.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Kept from before: the category has no such field.</source>
        <translation>Conservado de antes: la categoría no tiene ese campo.</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Otros valores</translation>
    </message>
    <message>
        <source>Life</source>
        <translation>Vida</translation>
    </message>
    <message>
        <source>Born or begun</source>
        <translation>Nacimiento o comienzo</translation>
    </message>
    <message>
        <source>Died or ended</source>
        <translation>Muerte o final</translation>
    </message>
    <message>
        <source>State over time</source>
        <translation>Estado a lo largo del tiempo</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Prose</source>
        <translation>Prosa</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Sinopsis</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Punto de vista</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>0 stands for not set.</source>
        <translation>0 significa sin valor.</translation>
    </message>
    <message>
        <source>Scene date</source>
        <translation>Fecha de la escena</translation>
    </message>
    <message>
        <source>Word-count target</source>
        <translation>Objetivo de palabras</translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation>Tramas</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Pie</translation>
    </message>
    <message>
        <source>Citation key</source>
        <translation>Clave de cita</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Resuelto</translation>
    </message>
    <message>
        <source>Grammar notes</source>
        <translation>Notas de gramática</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Audiences</source>
        <translation>Públicos</translation>
    </message>
    <message>
        <source>Without any, everybody sees it.</source>
        <translation>Sin ninguno, lo ve todo el mundo.</translation>
    </message>
    <message>
        <source>Withhold from AI services</source>
        <translation>No enviar a servicios de IA</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
</context>
<context>
    <name>vl::app::InspectorModel</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Dentro de</translation>
    </message>
    <message>
        <source>(top level)</source>
        <translation>(nivel superior)</translation>
    </message>
    <message>
        <source>Fields of its entities</source>
        <translation>Campos de sus entidades</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campos</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entidad</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n documento</numerusform>
            <numerusform>%n documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n objeto</numerusform>
            <numerusform>%n objetos</numerusform>
        </translation>
    </message>
    <message>
        <source>No entity is called so.</source>
        <translation>Ninguna entidad se llama así.</translation>
    </message>
    <message>
        <source>What it referred to was deleted.</source>
        <translation>Aquello a lo que se refería se eliminó.</translation>
    </message>
    <message>
        <source>Kept as written: no date of the calendar.</source>
        <translation>Se conserva como está escrito: no es una fecha del calendario.</translation>
    </message>
    <message>
        <source>Kept as written: no number.</source>
        <translation>Se conserva como está escrito: no es un número.</translation>
    </message>
    <message>
        <source>Kept as written: no web address.</source>
        <translation>Se conserva como está escrito: no es una dirección web.</translation>
    </message>
    <message>
        <source>To be filled.</source>
        <translation>Por rellenar.</translation>
    </message>
    <message>
        <source>It needs a name.</source>
        <translation>Necesita un nombre.</translation>
    </message>
    <message>
        <source>No date of the calendar. Type one like “%1”.</source>
        <translation>No es una fecha del calendario. Escriba una como «%1».</translation>
    </message>
    <message>
        <source>No entity is called “%1”.</source>
        <translation>Ninguna entidad se llama «%1».</translation>
    </message>
    <message>
        <source>Several entities are called “%1”: choose one from the list.</source>
        <translation>Varias entidades se llaman «%1»: elija una de la lista.</translation>
    </message>
</context>
<context>
    <name>vl::app::Journal</name>
    <message>
        <source>What was not saved before the crash cannot be read: %1</source>
        <translation>No se puede leer lo que quedó sin guardar antes del fallo: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::MarkdownImport</name>
    <message>
        <source>Front Matter</source>
        <translation>Preliminares</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadatos</translation>
    </message>
</context>
<context>
    <name>vl::app::ObjectSummary</name>
    <message>
        <source>(missing)</source>
        <translation>(falta)</translation>
    </message>
    <message>
        <source>Place: %1</source>
        <translation>Lugar: %1</translation>
    </message>
    <message>
        <source>With %1</source>
        <translation>Con %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s)</source>
        <translation>
            <numerusform>%n celda</numerusform>
            <numerusform>%n celdas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of figures</source>
        <translation>
            <numerusform>%n fila de cifras</numerusform>
            <numerusform>%n filas de cifras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pin(s)</source>
        <translation>
            <numerusform>%n chincheta</numerusform>
            <numerusform>%n chinchetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n región</numerusform>
            <numerusform>%n regiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n route(s)</source>
        <translation>
            <numerusform>%n ruta</numerusform>
            <numerusform>%n rutas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n acontecimiento</numerusform>
            <numerusform>%n acontecimientos</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Sin hacer</translation>
    </message>
    <message>
        <source>Due %1</source>
        <translation>Vence el %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s)</source>
        <translation>
            <numerusform>%n tarjeta</numerusform>
            <numerusform>%n tarjetas</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1</source>
        <translation>En %1</translation>
    </message>
    <message numerus="yes">
        <source>%n word(s) in the lexicon</source>
        <translation>
            <numerusform>%n palabra en el léxico</numerusform>
            <numerusform>%n palabras en el léxico</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) to roll</source>
        <translation>
            <numerusform>%n línea que tirar</numerusform>
            <numerusform>%n líneas que tirar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 figures, %2 actions</source>
        <translation>%1 valores, %2 acciones</translation>
    </message>
</context>
<context>
    <name>vl::app::OpenProject</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation>Este proyecto aún no tiene dónde guardarse; use saveAs().</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (solo lectura)</translation>
    </message>
    <message>
        <source>“%1” was opened to be read only. Save it under another name first; pictures are kept beside the text.</source>
        <translation>«%1» se abrió solo para leer. Guárdelo antes con otro nombre; las imágenes se guardan junto al texto.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>No se puede crear la carpeta del proyecto: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::Opening</name>
    <message>
        <source>The project file is not readable right now; try again.</source>
        <translation>El archivo del proyecto no se puede leer en este momento; inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>No se pudo actualizar la carpeta de trabajo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not restore unsaved changes into the project file: %1</source>
        <translation>No se pudieron recuperar los cambios sin guardar en el archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>This project has no save location to reload from.</source>
        <translation>Este proyecto no se ha guardado en ningún sitio del que volver a cargarlo.</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideMonitor</name>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>No se pudo abrir el archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Something else is being done to the project; try again.</source>
        <translation>Se está haciendo otra cosa con el proyecto; inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The project changed again meanwhile; look at the changes once more.</source>
        <translation>El proyecto ha vuelto a cambiar entretanto; mire otra vez los cambios.</translation>
    </message>
    <message>
        <source>Load on-disk version</source>
        <translation>Cargar la versión del disco</translation>
    </message>
    <message>
        <source>Merge on-disk changes</source>
        <translation>Fusionar los cambios del disco</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideOffer</name>
    <message>
        <source>The project's files are gone from the disk: %1</source>
        <translation>Los archivos del proyecto ya no están en el disco: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Ivorel and cannot be read.</source>
        <translation>
            <numerusform>%n archivo del proyecto cambió fuera de Ivorel y no se puede leer.</numerusform>
            <numerusform>%n archivos del proyecto cambiaron fuera de Ivorel y no se pueden leer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing of it is loaded. What you have here is whole, and saving keeps it.</source>
        <translation>No se carga nada de ello. Lo que tiene aquí está completo y guardar lo conserva.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) changed outside Ivorel and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</source>
        <translation>
            <numerusform>%n archivo cambió fuera de Ivorel y se puede fusionar con sus cambios sin guardar. ¿Fusionar y volver a cargar ahora? Antes se hace una copia de seguridad de su proyecto actual.</numerusform>
            <numerusform>%n archivos cambiaron fuera de Ivorel y se pueden fusionar con sus cambios sin guardar. ¿Fusionar y volver a cargar ahora? Antes se hace una copia de seguridad de su proyecto actual.</numerusform>
        </translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>El proyecto cambió fuera de Ivorel desde que lo abrió.</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Ivorel since you opened it.</source>
        <translation>
            <numerusform>%n archivo del proyecto cambió fuera de Ivorel desde que lo abrió.</numerusform>
            <numerusform>%n archivos del proyecto cambiaron fuera de Ivorel desde que lo abrió.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reopen the project to load the on-disk version, or save to keep yours. (This is a read-only heads-up so a sync client or co-author's changes don't surprise you.)</source>
        <translation>Vuelva a abrir el proyecto para cargar la versión del disco, o guarde para conservar la suya. (Es solo un aviso, para que los cambios de un cliente de sincronización o de un coautor no le sorprendan.)</translation>
    </message>
    <message>
        <source>Loaded the on-disk version of the project.</source>
        <translation>Se cargó la versión del proyecto que hay en el disco.</translation>
    </message>
    <message>
        <source>Keeping your version — your next save will overwrite the on-disk changes.</source>
        <translation>Se conserva su versión; la próxima vez que guarde se sobrescribirán los cambios del disco.</translation>
    </message>
    <message>
        <source>No external changes — the project on disk matches what you have open.</source>
        <translation>No hay cambios externos: el proyecto en el disco coincide con el que tiene abierto.</translation>
    </message>
    <message>
        <source>Merged the on-disk changes with yours.</source>
        <translation>Los cambios del disco se fusionaron con los suyos.</translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</source>
        <translation>
            <numerusform>%n archivo de medios del proyecto cambió en el disco (añadido, sustituido o eliminado por un coautor o un cliente de sincronización). Guarde o vuelva a abrir el proyecto para usarlo actualizado.</numerusform>
            <numerusform>%n archivos de medios del proyecto cambiaron en el disco (añadidos, sustituidos o eliminados por un coautor o un cliente de sincronización). Guarde o vuelva a abrir el proyecto para usarlos actualizados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reloaded the project with the updated media files.</source>
        <translation>El proyecto se volvió a cargar con los archivos de medios actualizados.</translation>
    </message>
    <message>
        <source>Nothing is removed here. If the disk or the sync folder comes back, all goes on as before; otherwise save to write everything there again, but for pictures and other media, which were only there.</source>
        <translation>Aquí no se quita nada. Si el disco o la carpeta sincronizada vuelve, todo sigue como antes; si no, guarde para volver a escribirlo todo allí, salvo las imágenes y otros medios, que solo estaban allí.</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideScan</name>
    <message>
        <source>The project file is not readable right now; try again.</source>
        <translation>El archivo del proyecto no se puede leer en este momento; inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>No se pudo actualizar la carpeta de trabajo del proyecto: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::PlainTextImport</name>
    <message>
        <source>Front Matter</source>
        <translation>Preliminares</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectFlows</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>El proyecto cambió fuera de Ivorel desde que lo abrió.</translation>
    </message>
    <message>
        <source>Saving puts your version in place of what was changed there. To keep both, save under another name.</source>
        <translation>Al guardar, su versión sustituye lo que se cambió allí. Para conservar ambas, guarde con otro nombre.</translation>
    </message>
    <message>
        <source>Save My Version</source>
        <translation>Guardar mi versión</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>This project is open in another window: %1</source>
        <translation>Este proyecto está abierto en otra ventana: %1</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>The project could not be found: %1</source>
        <translation>No se encontró el proyecto: %1</translation>
    </message>
    <message>
        <source>&amp;Locate…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message numerus="yes">
        <source>The copy leaves out %n file(s) that cannot be read:</source>
        <translation>
            <numerusform>La copia deja fuera %n archivo que no se puede leer:</numerusform>
            <numerusform>La copia deja fuera %n archivos que no se pueden leer:</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving writes everything there again that is open here; pictures and other media that were only there are not brought back. If the disk or the sync folder may come back, wait for it, or save under another name.</source>
        <translation>Al guardar se vuelve a escribir allí todo lo que está abierto aquí; las imágenes y demás archivos multimedia que solo estaban allí no se recuperan. Si el disco o la carpeta sincronizada puede volver, espere, o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>Save There Again</source>
        <translation>Guardar allí de nuevo</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) beside the text cannot be read.</source>
        <translation>
            <numerusform>No se puede leer %n archivo que acompaña al texto.</numerusform>
            <numerusform>No se pueden leer %n archivos que acompañan al texto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything you wrote is saved; what cannot be read stays where it is.</source>
        <translation>Todo lo que ha escrito se guarda; lo que no se puede leer se queda donde está.</translation>
    </message>
    <message>
        <source>Save the Rest</source>
        <translation>Guardar el resto</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectFolder</name>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>No se pudo leer un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>La carpeta del proyecto no existe: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>No se pudo escribir un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>No se pudo crear la carpeta para: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectMaker</name>
    <message>
        <source>The project needs a name.</source>
        <translation>El proyecto necesita un nombre.</translation>
    </message>
    <message>
        <source>The name must do without / \ : * ? " &lt; &gt; and |.</source>
        <translation>El nombre no puede contener / \ : * ? " &lt; &gt; ni |.</translation>
    </message>
    <message numerus="yes">
        <source>The name must not begin or end with a point, nor be longer than %n character(s).</source>
        <translation>
            <numerusform>El nombre no puede empezar ni acabar con un punto, ni tener más de %n carácter.</numerusform>
            <numerusform>El nombre no puede empezar ni acabar con un punto, ni tener más de %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The project needs a place.</source>
        <translation>El proyecto necesita un lugar.</translation>
    </message>
    <message>
        <source>This is no folder: %1</source>
        <translation>Esto no es una carpeta: %1</translation>
    </message>
    <message>
        <source>There is something of this name already: %1</source>
        <translation>Ya hay algo con este nombre: %1</translation>
    </message>
    <message>
        <source>The folder could not be made: %1</source>
        <translation>No se pudo crear la carpeta: %1</translation>
    </message>
    <message>
        <source>There is no such template.</source>
        <translation>No existe esa plantilla.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectReader</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>La carpeta del proyecto no existe: %1</translation>
    </message>
    <message>
        <source>Invalid JSON in file: %1</source>
        <translation>JSON no válido en el archivo: %1</translation>
    </message>
    <message>
        <source>Malformed object file: %1</source>
        <translation>Archivo de objeto mal formado: %1</translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation>Identificador de objeto %1 duplicado en %2</translation>
    </message>
    <message>
        <source>Malformed category file: %1</source>
        <translation>Archivo de categoría mal formado: %1</translation>
    </message>
    <message>
        <source>Malformed field in category: %1</source>
        <translation>Campo mal formado en la categoría: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectRepair</name>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>No se pudo leer un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>No se pudo abrir el archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Its bytes in the project file are damaged or missing.</source>
        <translation>Sus datos en el archivo del proyecto están dañados o faltan.</translation>
    </message>
    <message>
        <source>Nothing in this file can be read: %1</source>
        <translation>Nada de este archivo se puede leer: %1</translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation>Identificador de objeto %1 duplicado en %2</translation>
    </message>
    <message>
        <source>Something stands there already: %1</source>
        <translation>Ya hay algo ahí: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>No se pudo escribir un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not move the file: %1</source>
        <translation>No se pudo mover el archivo: %1</translation>
    </message>
    <message>
        <source>The project file holds “%1” more than once; this is an earlier one.</source>
        <translation>El archivo del proyecto contiene «%1» más de una vez; esta es una versión anterior.</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>El proyecto cambió fuera de Ivorel desde que lo abrió.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectSearchModel</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Nota al pie</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Sinopsis</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Punto de vista</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Pie</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Celda</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>La búsqueda se detuvo.</translation>
    </message>
    <message>
        <source>Comment on “%1”</source>
        <translation>Comentario sobre «%1»</translation>
    </message>
    <message>
        <source>Eras</source>
        <translation>Eras</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation>Tramas</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>The expression takes too many steps; the search stopped at “%1”.</source>
        <translation>La expresión requiere demasiados pasos; la búsqueda se detuvo en «%1».</translation>
    </message>
    <message>
        <source>Replace in project</source>
        <translation>Reemplazar en el proyecto</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n place(s)</source>
        <translation>
            <numerusform>%1: %n lugar</numerusform>
            <numerusform>%1: %n lugares</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 «%2»</translation>
    </message>
    <message>
        <source>%1, becomes “%2”</source>
        <translation>%1, pasa a ser «%2»</translation>
    </message>
    <message>
        <source>This text is not changed from here.</source>
        <translation>Este texto no se cambia desde aquí.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectStore</name>
    <message>
        <source>The folder is not empty: %1</source>
        <translation>La carpeta no está vacía: %1</translation>
    </message>
    <message>
        <source>Not a valid Ivorel project file: %1</source>
        <translation>Este archivo no es un proyecto de Ivorel válido: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::QuickOpenModel</name>
    <message>
        <source>The current document has no headings.</source>
        <translation>El documento actual no tiene títulos.</translation>
    </message>
    <message>
        <source>No heading matches.</source>
        <translation>Ningún título coincide.</translation>
    </message>
    <message>
        <source>Nothing in this project has a tag.</source>
        <translation>Nada en este proyecto tiene etiquetas.</translation>
    </message>
    <message>
        <source>No tag matches.</source>
        <translation>Ninguna etiqueta coincide.</translation>
    </message>
    <message>
        <source>No command matches.</source>
        <translation>Ninguna orden coincide.</translation>
    </message>
    <message>
        <source>This project has no documents or entities yet.</source>
        <translation>Este proyecto aún no tiene documentos ni entidades.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nada coincide con «%1».</translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n objeto</numerusform>
            <numerusform>%n objetos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 – also “%2”</source>
        <translation>%1 – también «%2»</translation>
    </message>
</context>
<context>
    <name>vl::app::ReadableFile</name>
    <message>
        <source>Place in the text</source>
        <translation>Lugar en el texto</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Archivo multimedia</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Hecha</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Vence</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Endnote</source>
        <translation>Nota final</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Notas al pie</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Dentro de</translation>
    </message>
    <message>
        <source>Who takes part</source>
        <translation>Quién participa</translation>
    </message>
    <message>
        <source>Text before the revision</source>
        <translation>Texto anterior a la revisión</translation>
    </message>
    <message>
        <source>Place in the order</source>
        <translation>Lugar en el orden</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Comienzo</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiado</translation>
    </message>
    <message>
        <source>Other wordings</source>
        <translation>Otras redacciones</translation>
    </message>
    <message>
        <source>Earlier versions</source>
        <translation>Versiones anteriores</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>another object (%1)</source>
        <translation>otro objeto (%1)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>One end</source>
        <translation>Un extremo</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Wording shown</source>
        <translation>Redacción mostrada</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anotaciones</translation>
    </message>
    <message>
        <source>Scenes of the beats</source>
        <translation>Escenas de los puntos de la escaleta</translation>
    </message>
    <message>
        <source>Other end</source>
        <translation>Otro extremo</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Beat</source>
        <translation>Punto de la escaleta</translation>
    </message>
    <message>
        <source>Beat sheet</source>
        <translation>Escaleta</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Tablero</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Title of the category axis</source>
        <translation>Título del eje de categorías</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Celdas</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Personaje</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Plegado</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Coloured by</source>
        <translation>Coloreado por</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Column widths</source>
        <translation>Anchos de las columnas</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Conexiones</translation>
    </message>
    <message>
        <source>Consonants</source>
        <translation>Consonantes</translation>
    </message>
    <message>
        <source>Order among the events</source>
        <translation>Orden entre los acontecimientos</translation>
    </message>
    <message>
        <source>Continuity rules</source>
        <translation>Reglas de continuidad</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>Words a day</source>
        <translation>Palabras al día</translation>
    </message>
    <message>
        <source>Certainty of the date</source>
        <translation>Certeza de la fecha</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation>Fecha límite</translation>
    </message>
    <message>
        <source>Decimal places</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidad</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Unit of distance</source>
        <translation>Unidad de distancia</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Length in minutes</source>
        <translation>Duración en minutos</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Entity templates</source>
        <translation>Plantillas de entidad</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Offset in minutes</source>
        <translation>Desfase en minutos</translation>
    </message>
    <message>
        <source>Era</source>
        <translation>Era</translation>
    </message>
    <message>
        <source>Size of the events</source>
        <translation>Tamaño de los acontecimientos</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Values of the fields</source>
        <translation>Valores de los campos</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Tamaño de la letra</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formatos</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Columns of the grid</source>
        <translation>Columnas de la cuadrícula</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translation>Agrupado por</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Marks the present</source>
        <translation>Marca el presente</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Form of the labels</source>
        <translation>Forma de las etiquetas</translation>
    </message>
    <message>
        <source>Place of the labels</source>
        <translation>Lugar de las etiquetas</translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation>Carriles</translation>
    </message>
    <message>
        <source>Lexicon</source>
        <translation>Léxico</translation>
    </message>
    <message>
        <source>Linked category</source>
        <translation>Categoría enlazada</translation>
    </message>
    <message>
        <source>Linked entity</source>
        <translation>Entidad enlazada</translation>
    </message>
    <message>
        <source>Linked map</source>
        <translation>Mapa enlazado</translation>
    </message>
    <message>
        <source>Words of the manuscript</source>
        <translation>Palabras del manuscrito</translation>
    </message>
    <message>
        <source>Most syllables</source>
        <translation>Máximo de sílabas</translation>
    </message>
    <message>
        <source>Fewest syllables</source>
        <translation>Mínimo de sílabas</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Mounted libraries</source>
        <translation>Bibliotecas montadas</translation>
    </message>
    <message>
        <source>Number format</source>
        <translation>Formato de los números</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objeto</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Equal steps</source>
        <translation>Pasos iguales</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Acontecimiento</translation>
    </message>
    <message>
        <source>Part of speech</source>
        <translation>Categoría gramatical</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Syllable patterns</source>
        <translation>Patrones de sílabas</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fijados</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Chinchetas</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Vértices</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Recipient</source>
        <translation>Destinatario</translation>
    </message>
    <message>
        <source>Reckonings</source>
        <translation>Cómputos</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiones</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>Revealed</source>
        <translation>Revelado</translation>
    </message>
    <message>
        <source>Routes</source>
        <translation>Rutas</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Row height</source>
        <translation>Altura de la fila</translation>
    </message>
    <message>
        <source>Row heights</source>
        <translation>Alturas de las filas</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Escenas</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Order of the series</source>
        <translation>Orden de las series</translation>
    </message>
    <message>
        <source>Shape of the series</source>
        <translation>Forma de las series</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Conflict marks shown</source>
        <translation>Marcas de conflicto a la vista</translation>
    </message>
    <message>
        <source>Density strip shown</source>
        <translation>Franja de densidad a la vista</translation>
    </message>
    <message>
        <source>Grid lines shown</source>
        <translation>Líneas de la cuadrícula a la vista</translation>
    </message>
    <message>
        <source>Labels shown</source>
        <translation>Etiquetas a la vista</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Tipo de fuente</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Struck out</source>
        <translation>Tachado</translation>
    </message>
    <message>
        <source>Submission</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Submitted</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Rule system</source>
        <translation>Sistema de reglas</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Timeline bookmarks</source>
        <translation>Lugares guardados de la línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline eras</source>
        <translation>Eras de la línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline markers</source>
        <translation>Marcadores de la línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline view</source>
        <translation>Vista de la línea de tiempo</translation>
    </message>
    <message>
        <source>Timeline view presets</source>
        <translation>Vistas guardadas de la línea de tiempo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hacia</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Fichas</translation>
    </message>
    <message>
        <source>Travel speed an hour</source>
        <translation>Velocidad de viaje por hora</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Title of the value axis</source>
        <translation>Título del eje de valores</translation>
    </message>
    <message>
        <source>Vowels</source>
        <translation>Vocales</translation>
    </message>
    <message>
        <source>Days of the week</source>
        <translation>Días de la semana</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Distance across the map</source>
        <translation>Distancia a lo ancho del mapa</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Palabra</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Writable</source>
        <translation>Se puede escribir</translation>
    </message>
    <message>
        <source>Writing goal</source>
        <translation>Meta de escritura</translation>
    </message>
    <message>
        <source>Writing log</source>
        <translation>Registro de escritura</translation>
    </message>
    <message>
        <source>Centred</source>
        <translation>Centrado</translation>
    </message>
    <message>
        <source>As the sheet has it</source>
        <translation>Como en la hoja</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Is</source>
        <translation>Es</translation>
    </message>
    <message>
        <source>Is not</source>
        <translation>No es</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>During</source>
        <translation>Durante</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exacta</translation>
    </message>
    <message>
        <source>Hexagons</source>
        <translation>Hexágonos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Squares</source>
        <translation>Cuadrados</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Pie</source>
        <translation>Circular</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Científico</translation>
    </message>
    <message>
        <source>Around</source>
        <translation>Hacia</translation>
    </message>
</context>
<context>
    <name>vl::app::RecentlyDeleted</name>
    <message>
        <source>Restore what was deleted</source>
        <translation>Restaurar lo eliminado</translation>
    </message>
</context>
<context>
    <name>vl::app::ReckoningView</name>
    <message>
        <source>New reckoning</source>
        <translation>Cómputo nuevo</translation>
    </message>
</context>
<context>
    <name>vl::app::Reconcile</name>
    <message>
        <source>the reconcile has conflicts to resolve first</source>
        <translation>la conciliación tiene conflictos que resolver antes</translation>
    </message>
    <message>
        <source>the merged file '%1' would not be valid</source>
        <translation>el archivo fusionado «%1» no sería válido</translation>
    </message>
</context>
<context>
    <name>vl::app::Recovery</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s)</source>
        <translation>
            <numerusform>%n cambio</numerusform>
            <numerusform>%n cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore unsaved work</source>
        <translation>Restaurar el trabajo sin guardar</translation>
    </message>
    <message>
        <source>%1 (unsaved work)</source>
        <translation>%1 (trabajo sin guardar)</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::RepairFlow</name>
    <message>
        <source>%1 (backup)</source>
        <translation>%1 (copia de seguridad)</translation>
    </message>
    <message>
        <source>%1 (repaired)</source>
        <translation>%1 (reparado)</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>It is in the newest backup, and missing in this file.</source>
        <translation>Está en la copia de seguridad más reciente y falta en este archivo.</translation>
    </message>
</context>
<context>
    <name>vl::app::Saving</name>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation>Este proyecto aún no tiene dónde guardarse; use saveAs().</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>No se pudo abrir el archivo del proyecto: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::SearchPattern</name>
    <message>
        <source>What is searched for is too long.</source>
        <translation>Lo que se busca es demasiado largo.</translation>
    </message>
    <message>
        <source>There is nothing to search for.</source>
        <translation>No hay nada que buscar.</translation>
    </message>
    <message>
        <source>The expression is not complete at character %1: %2.</source>
        <translation>La expresión no está completa en el carácter %1: %2.</translation>
    </message>
</context>
<context>
    <name>vl::app::StoryTemplates</name>
    <message>
        <source>Role</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Protagonist</source>
        <translation>Protagonista</translation>
    </message>
    <message>
        <source>Antagonist</source>
        <translation>Antagonista</translation>
    </message>
    <message>
        <source>Ally</source>
        <translation>Aliado</translation>
    </message>
    <message>
        <source>Love interest</source>
        <translation>Interés amoroso</translation>
    </message>
    <message>
        <source>Mentor</source>
        <translation>Mentor</translation>
    </message>
    <message>
        <source>Supporting</source>
        <translation>Secundario</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>Occupation</source>
        <translation>Ocupación</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>What a stranger would notice first.</source>
        <translation>Lo primero que notaría un desconocido.</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>How they speak: pace, pet words, what they never say.</source>
        <translation>Cómo habla: ritmo, muletillas, lo que nunca dice.</translation>
    </message>
    <message>
        <source>Wants</source>
        <translation>Quiere</translation>
    </message>
    <message>
        <source>What they go after from the first page on.</source>
        <translation>Lo que persigue desde la primera página.</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>Necesita</translation>
    </message>
    <message>
        <source>What they must learn or let go of.</source>
        <translation>Lo que debe aprender o soltar.</translation>
    </message>
    <message>
        <source>Fears</source>
        <translation>Teme</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Hogar</translation>
    </message>
    <message>
        <source>A place of the codex.</source>
        <translation>Un lugar del códice.</translation>
    </message>
    <message>
        <source>Related to</source>
        <translation>Relacionado con</translation>
    </message>
    <message>
        <source>A person of the codex.</source>
        <translation>Una persona del códice.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Building</source>
        <translation>Edificio</translation>
    </message>
    <message>
        <source>Room</source>
        <translation>Habitación</translation>
    </message>
    <message>
        <source>Wilderness</source>
        <translation>Tierras salvajes</translation>
    </message>
    <message>
        <source>Lies in</source>
        <translation>Está en</translation>
    </message>
    <message>
        <source>Senses</source>
        <translation>Sentidos</translation>
    </message>
    <message>
        <source>What is seen, heard and smelled there.</source>
        <translation>Lo que allí se ve, se oye y se huele.</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Dueño</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Why the story cannot do without it.</source>
        <translation>Por qué la historia no puede prescindir de ello.</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Propósito</translation>
    </message>
    <message>
        <source>Led by</source>
        <translation>Dirigida por</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Sede</translation>
    </message>
    <message>
        <source>Enemies</source>
        <translation>Enemigos</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Personajes</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>Things</source>
        <translation>Cosas</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Main character</source>
        <translation>Personaje principal</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>Read the whole draft without changing anything</source>
        <translation>Leer todo el borrador sin cambiar nada</translation>
    </message>
    <message>
        <source>Note only where you were bored, lost or moved.</source>
        <translation>Anote solo dónde se aburrió, se perdió o se conmovió.</translation>
    </message>
    <message>
        <source>Does each scene change something?</source>
        <translation>¿Cambia algo cada escena?</translation>
    </message>
    <message>
        <source>Follow each plot thread from its first scene to its last</source>
        <translation>Seguir cada trama desde su primera escena hasta la última</translation>
    </message>
    <message>
        <source>Check names, ages and dates against the codex</source>
        <translation>Comprobar nombres, edades y fechas con el códice</translation>
    </message>
    <message>
        <source>Read the dialogue aloud</source>
        <translation>Leer los diálogos en voz alta</translation>
    </message>
    <message>
        <source>Proofread the last version</source>
        <translation>Corregir la última versión</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Capítulo %1</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Act One</source>
        <translation>Acto primero</translation>
    </message>
    <message>
        <source>The ordinary world</source>
        <translation>El mundo de siempre</translation>
    </message>
    <message>
        <source>Who is this about, what do they want, and what is missing?</source>
        <translation>¿De quién se trata, qué quiere y qué falta?</translation>
    </message>
    <message>
        <source>The disturbance</source>
        <translation>La perturbación</translation>
    </message>
    <message>
        <source>What happens that cannot be taken back?</source>
        <translation>¿Qué ocurre que no tiene vuelta atrás?</translation>
    </message>
    <message>
        <source>The door closes</source>
        <translation>La puerta se cierra</translation>
    </message>
    <message>
        <source>The choice after which there is no way home.</source>
        <translation>La decisión tras la que no hay regreso.</translation>
    </message>
    <message>
        <source>Act Two</source>
        <translation>Acto segundo</translation>
    </message>
    <message>
        <source>The turn</source>
        <translation>El giro</translation>
    </message>
    <message>
        <source>What they believed turns out to be wrong.</source>
        <translation>Lo que creía resulta ser falso.</translation>
    </message>
    <message>
        <source>The loss</source>
        <translation>La pérdida</translation>
    </message>
    <message>
        <source>Everything that was won is gone.</source>
        <translation>Todo lo ganado se ha perdido.</translation>
    </message>
    <message>
        <source>Act Three</source>
        <translation>Acto tercero</translation>
    </message>
    <message>
        <source>The reckoning</source>
        <translation>El ajuste de cuentas</translation>
    </message>
    <message>
        <source>They face what they fled from.</source>
        <translation>Se enfrenta a aquello de lo que huía.</translation>
    </message>
    <message>
        <source>What remains</source>
        <translation>Lo que queda</translation>
    </message>
    <message>
        <source>Who are they now, and what did it cost?</source>
        <translation>¿Quién es ahora y qué le ha costado?</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Premise</source>
        <translation>Premisa</translation>
    </message>
    <message>
        <source># Premise

When …, someone who … must …, or else ….

# Theme

What does the story believe at its end that it did not at its beginning?</source>
        <translation># Premisa

Cuando …, alguien que … debe …, o de lo contrario ….

# Tema

¿Qué cree la historia al final que no creía al principio?</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Sinopsis</translation>
    </message>
    <message>
        <source>The whole story on one page, its end included.</source>
        <translation>Toda la historia en una página, con su final.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>- Person and tense:
- Spelling:
- Names and how they are written:
- Numbers and dates:
- Words to avoid:</source>
        <translation>- Persona y tiempo verbal:
- Ortografía:
- Nombres y cómo se escriben:
- Números y fechas:
- Palabras que evitar:</translation>
    </message>
    <message>
        <source>Research</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Main plot</source>
        <translation>Trama principal</translation>
    </message>
    <message>
        <source>The question that the first chapter raises.</source>
        <translation>La pregunta que plantea el primer capítulo.</translation>
    </message>
    <message>
        <source>Inner change</source>
        <translation>Cambio interior</translation>
    </message>
    <message>
        <source>What the main character learns.</source>
        <translation>Lo que aprende el personaje principal.</translation>
    </message>
    <message>
        <source>Subplot</source>
        <translation>Trama secundaria</translation>
    </message>
    <message>
        <source>The same theme, seen from another side.</source>
        <translation>El mismo tema, visto desde otro lado.</translation>
    </message>
    <message>
        <source>Book One</source>
        <translation>Libro primero</translation>
    </message>
    <message>
        <source>Book Two</source>
        <translation>Libro segundo</translation>
    </message>
    <message>
        <source>Book Three</source>
        <translation>Libro tercero</translation>
    </message>
    <message>
        <source>What this book answers, and what it leaves open for the next.</source>
        <translation>Lo que este libro responde y lo que deja abierto para el siguiente.</translation>
    </message>
    <message>
        <source>Series bible</source>
        <translation>Biblia de la serie</translation>
    </message>
    <message>
        <source>The long arc</source>
        <translation>El arco largo</translation>
    </message>
    <message>
        <source># The question of the series

# How each book turns it

## Book One

## Book Two

## Book Three

# How it ends</source>
        <translation># La pregunta de la serie

# Cómo la hace girar cada libro

## Libro primero

## Libro segundo

## Libro tercero

# Cómo termina</translation>
    </message>
    <message>
        <source>What is settled</source>
        <translation>Lo que está fijado</translation>
    </message>
    <message>
        <source>Facts that a later book must not contradict, with the chapter that set them.

- </source>
        <translation>Hechos que un libro posterior no debe contradecir, con el capítulo que los fijó.

- </translation>
    </message>
    <message>
        <source>What is promised</source>
        <translation>Lo que se promete</translation>
    </message>
    <message>
        <source>Hints and open questions, and where they are to be answered.

- </source>
        <translation>Indicios y preguntas abiertas, y dónde se responderán.

- </translation>
    </message>
    <message>
        <source>Rules of the world</source>
        <translation>Reglas del mundo</translation>
    </message>
    <message>
        <source># What is possible

# What it costs

# What is impossible</source>
        <translation># Lo que es posible

# Lo que cuesta

# Lo que es imposible</translation>
    </message>
    <message>
        <source>At the end of book %1</source>
        <translation>Al final del libro %1</translation>
    </message>
    <message>
        <source>Peoples and languages</source>
        <translation>Pueblos y lenguas</translation>
    </message>
    <message>
        <source>Customs</source>
        <translation>Costumbres</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Habla</translation>
    </message>
    <message>
        <source>Land</source>
        <translation>Tierra</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Causa</translation>
    </message>
    <message>
        <source>Consequences</source>
        <translation>Consecuencias</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glosario</translation>
    </message>
    <message>
        <source>Pronunciation</source>
        <translation>Pronunciación</translation>
    </message>
    <message>
        <source>Series arc</source>
        <translation>Arco de la serie</translation>
    </message>
    <message>
        <source>Runs through all books.</source>
        <translation>Recorre todos los libros.</translation>
    </message>
    <message>
        <source>Arc of book one</source>
        <translation>Arco del libro primero</translation>
    </message>
    <message>
        <source>Begins and ends in the first book.</source>
        <translation>Empieza y termina en el primer libro.</translation>
    </message>
    <message>
        <source>Arc of book two</source>
        <translation>Arco del libro segundo</translation>
    </message>
    <message>
        <source>Begins and ends in the second book.</source>
        <translation>Empieza y termina en el segundo libro.</translation>
    </message>
    <message>
        <source>Arc of book three</source>
        <translation>Arco del libro tercero</translation>
    </message>
    <message>
        <source>Begins and ends in the third book.</source>
        <translation>Empieza y termina en el tercer libro.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>An image that holds the whole film.</source>
        <translation>Una imagen que contiene toda la película.</translation>
    </message>
    <message>
        <source>What sets everything off, by page 12.</source>
        <translation>Lo que lo desencadena todo, hacia la página 12.</translation>
    </message>
    <message>
        <source>Into the second act</source>
        <translation>Hacia el segundo acto</translation>
    </message>
    <message>
        <source>A decision, shown and not told, by page 25.</source>
        <translation>Una decisión, mostrada y no contada, hacia la página 25.</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Punto medio</translation>
    </message>
    <message>
        <source>A false victory or a false defeat.</source>
        <translation>Una falsa victoria o una falsa derrota.</translation>
    </message>
    <message>
        <source>All is lost</source>
        <translation>Todo está perdido</translation>
    </message>
    <message>
        <source>The lowest point, by page 75.</source>
        <translation>El punto más bajo, hacia la página 75.</translation>
    </message>
    <message>
        <source>Showdown</source>
        <translation>Enfrentamiento</translation>
    </message>
    <message>
        <source>The last confrontation.</source>
        <translation>La confrontación final.</translation>
    </message>
    <message>
        <source>Final image</source>
        <translation>Imagen final</translation>
    </message>
    <message>
        <source>The opening, changed.</source>
        <translation>La apertura, transformada.</translation>
    </message>
    <message>
        <source>FADE IN:

INT. A ROOM - DAY

What we see and hear, in the present tense.

CHARACTER
(quietly)
What is said.
</source>
        <translation>FUNDE A:

INT. UNA HABITACIÓN - DÍA

Lo que vemos y oímos, en presente.

PERSONAJE
(en voz baja)
Lo que se dice.
</translation>
    </message>
    <message>
        <source>Development</source>
        <translation>Desarrollo</translation>
    </message>
    <message>
        <source>Logline</source>
        <translation>Logline</translation>
    </message>
    <message>
        <source>One sentence: who, what they want, what stands in the way, what is at stake.</source>
        <translation>Una frase: quién, qué quiere, qué se interpone, qué está en juego.</translation>
    </message>
    <message>
        <source>Treatment</source>
        <translation>Tratamiento</translation>
    </message>
    <message>
        <source>The film in prose, in the present tense, two to five pages.</source>
        <translation>La película en prosa, en presente, de dos a cinco páginas.</translation>
    </message>
    <message>
        <source>Step outline</source>
        <translation>Escaleta de pasos</translation>
    </message>
    <message>
        <source>1. </source>
        <translation>1. </translation>
    </message>
    <message>
        <source>Cast</source>
        <translation>Reparto</translation>
    </message>
    <message>
        <source>Lead</source>
        <translation>Principal</translation>
    </message>
    <message>
        <source>Day player</source>
        <translation>De reparto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Figuración</translation>
    </message>
    <message>
        <source>Playing age</source>
        <translation>Edad aparente</translation>
    </message>
    <message>
        <source>First impression</source>
        <translation>Primera impresión</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Localizaciones</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Decorado</translation>
    </message>
    <message>
        <source>Interior</source>
        <translation>Interior</translation>
    </message>
    <message>
        <source>Exterior</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Also at night</source>
        <translation>También de noche</translation>
    </message>
    <message>
        <source>Props</source>
        <translation>Atrezo</translation>
    </message>
    <message>
        <source>A person of the cast.</source>
        <translation>Una persona del reparto.</translation>
    </message>
    <message>
        <source>A story</source>
        <translation>Historia A</translation>
    </message>
    <message>
        <source>The outer conflict.</source>
        <translation>El conflicto externo.</translation>
    </message>
    <message>
        <source>B story</source>
        <translation>Historia B</translation>
    </message>
    <message>
        <source>The relationship that carries the theme.</source>
        <translation>La relación que lleva el tema.</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Borradores</translation>
    </message>
    <message>
        <source>Outline on cards</source>
        <translation>Esquema en tarjetas</translation>
    </message>
    <message>
        <source>First draft without looking back</source>
        <translation>Primer borrador sin mirar atrás</translation>
    </message>
    <message>
        <source>Cut ten pages</source>
        <translation>Cortar diez páginas</translation>
    </message>
    <message>
        <source>Table read</source>
        <translation>Lectura de mesa</translation>
    </message>
</context>
<context>
    <name>vl::app::StyleRule</name>
    <message>
        <source>Hard-to-read sentences</source>
        <translation>Frases difíciles de leer</translation>
    </message>
    <message>
        <source>Passive voice</source>
        <translation>Voz pasiva</translation>
    </message>
    <message>
        <source>Crutch words</source>
        <translation>Muletillas</translation>
    </message>
    <message>
        <source>Repeated words</source>
        <translation>Palabras repetidas</translation>
    </message>
    <message>
        <source>Wordy phrases</source>
        <translation>Expresiones prolijas</translation>
    </message>
    <message>
        <source>Weak adverbs</source>
        <translation>Adverbios débiles</translation>
    </message>
    <message>
        <source>Clichés</source>
        <translation>Tópicos</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Passive voice: %1</source>
        <translation>Voz pasiva: %1</translation>
    </message>
    <message>
        <source>Filler word: %1</source>
        <translation>Muletilla: %1</translation>
    </message>
    <message>
        <source>Repeated word: %1</source>
        <translation>Palabra repetida: %1</translation>
    </message>
    <message>
        <source>Adverb: %1. Consider a stronger verb.</source>
        <translation>Adverbio: %1. Considere un verbo más fuerte.</translation>
    </message>
    <message>
        <source>Cliché: %1</source>
        <translation>Tópico: %1</translation>
    </message>
    <message>
        <source>Wordy: %1 → %2</source>
        <translation>Prolijo: %1 → %2</translation>
    </message>
    <message>
        <source>Long sentence (%1 words). Consider breaking it up.</source>
        <translation>Frase larga (%1 palabras). Considere dividirla.</translation>
    </message>
</context>
<context>
    <name>vl::app::TextSearch</name>
    <message>
        <source>The expression takes too many steps.</source>
        <translation>La expresión requiere demasiados pasos.</translation>
    </message>
</context>
<context>
    <name>vl::app::TimedValuesModel</name>
    <message>
        <source>Which field has the value?</source>
        <translation>¿Qué campo tiene el valor?</translation>
    </message>
    <message>
        <source>“%1” is no date of the calendar.</source>
        <translation>«%1» no es una fecha del calendario.</translation>
    </message>
    <message>
        <source>From when on? Type a date.</source>
        <translation>¿Desde cuándo? Escriba una fecha.</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
</context>
<context>
    <name>vl::app::WorkingFolder</name>
    <message>
        <source>Could not clear the stale working copy: %1</source>
        <translation>No se pudo borrar la copia de trabajo anticuada: %1</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>No se pudo actualizar la carpeta de trabajo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not prepare the project's working folder: %1</source>
        <translation>No se pudo preparar la carpeta de trabajo del proyecto: %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::Arguments</name>
    <message>
        <source>Unknown option: %1</source>
        <translation>Opción desconocida: %1</translation>
    </message>
    <message>
        <source>The option --%1 is given twice.</source>
        <translation>La opción --%1 aparece dos veces.</translation>
    </message>
    <message>
        <source>The option --%1 takes no value.</source>
        <translation>La opción --%1 no admite ningún valor.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>La opción --%1 necesita un valor.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Falta %1.</translation>
    </message>
    <message>
        <source>Too many arguments: %1</source>
        <translation>Demasiados argumentos: %1</translation>
    </message>
    <message>
        <source>The option --%1 is missing.</source>
        <translation>Falta la opción --%1.</translation>
    </message>
    <message>
        <source>Cannot read from standard input.</source>
        <translation>No se puede leer la entrada estándar.</translation>
    </message>
    <message>
        <source>Reading the project…</source>
        <translation>Leyendo el proyecto…</translation>
    </message>
    <message>
        <source>Checking the continuity…</source>
        <translation>Comprobando la continuidad…</translation>
    </message>
    <message>
        <source>Unknown format: %1</source>
        <translation>Formato desconocido: %1</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Preparando el informe…</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>categorías</translation>
    </message>
    <message>
        <source>words</source>
        <translation>palabras</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>Rendering…</source>
        <translation>Convirtiendo…</translation>
    </message>
    <message>
        <source>Checking the style…</source>
        <translation>Comprobando el estilo…</translation>
    </message>
    <message>
        <source>Comparing the folders…</source>
        <translation>Comparando las carpetas…</translation>
    </message>
    <message>
        <source>Writing the merged folder…</source>
        <translation>Escribiendo la carpeta fusionada…</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Writing the project…</source>
        <translation>Escribiendo el proyecto…</translation>
    </message>
    <message>
        <source>Reading what is to be imported…</source>
        <translation>Leyendo lo que se va a importar…</translation>
    </message>
    <message>
        <source>Documents added: %1</source>
        <translation>Documentos añadidos: %1</translation>
    </message>
    <message>
        <source>There is something already: %1</source>
        <translation>Ya hay algo ahí: %1</translation>
    </message>
    <message>
        <source>Packing…</source>
        <translation>Empaquetando…</translation>
    </message>
    <message>
        <source>Unpacking…</source>
        <translation>Desempaquetando…</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Leyendo las copias de seguridad…</translation>
    </message>
</context>
<context>
    <name>vl::cli::Batch</name>
    <message>
        <source>Unknown unit: %1</source>
        <translation>Unidad desconocida: %1</translation>
    </message>
    <message>
        <source>The member "%1" is missing.</source>
        <translation>Falta el miembro "%1".</translation>
    </message>
    <message>
        <source>The member "%1" must be %2.</source>
        <translation>El miembro "%1" debe ser %2.</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>una cadena</translation>
    </message>
    <message>
        <source>a string or null</source>
        <translation>una cadena o null</translation>
    </message>
    <message>
        <source>an integer of 64 bits</source>
        <translation>un entero de 64 bits</translation>
    </message>
    <message>
        <source>an integer from %1 to %2</source>
        <translation>un entero de %1 a %2</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>Unknown op: %1</source>
        <translation>Operación desconocida: %1</translation>
    </message>
    <message>
        <source>The line is not a JSON object.</source>
        <translation>La línea no es un objeto JSON.</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>La línea es demasiado larga.</translation>
    </message>
    <message>
        <source>The member "%1" is empty.</source>
        <translation>El miembro "%1" está vacío.</translation>
    </message>
    <message>
        <source>The entry "%1" has no result.</source>
        <translation>La entrada "%1" no tiene resultado.</translation>
    </message>
</context>
<context>
    <name>vl::cli::Catalogue</name>
    <message>
        <source>Count what a project holds</source>
        <translation>Cuenta lo que contiene un proyecto</translation>
    </message>
    <message>
        <source>Tell whether a project loads</source>
        <translation>Dice si un proyecto se puede cargar</translation>
    </message>
    <message>
        <source>Turn Markdown into an HTML fragment</source>
        <translation>Convierte Markdown en un fragmento HTML</translation>
    </message>
    <message>
        <source>Check the style of a text, or of a project</source>
        <translation>Comprueba el estilo de un texto o de un proyecto</translation>
    </message>
    <message>
        <source>Find where the story contradicts itself: the timeline, then the rules</source>
        <translation>Busca dónde se contradice la historia: la línea de tiempo y luego las reglas</translation>
    </message>
    <message>
        <source>Report how the manuscript stands, as “markdown” or “html”</source>
        <translation>Informa del estado del manuscrito, como «markdown» o «html»</translation>
    </message>
    <message>
        <source>Write the manuscript as “rtf”</source>
        <translation>Escribe el manuscrito como «rtf»</translation>
    </message>
    <message>
        <source>Answer JSON requests, one a line</source>
        <translation>Responde a peticiones JSON, una por línea</translation>
    </message>
    <message>
        <source>Usage: %1 COMMAND [ARGUMENT…]</source>
        <translation>Uso: %1 ORDEN [ARGUMENTO…]</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>PROJECT is a project folder or a “.vellum” file. FILE may be “-” for standard input or output.</source>
        <translation>PROJECT es una carpeta de proyecto o un archivo «.vellum». FILE puede ser «-» para la entrada o la salida estándar.</translation>
    </message>
    <message>
        <source>“%1 COMMAND --help” tells more about a command, “%1 --version” the version.</source>
        <translation>«%1 ORDEN --help» cuenta más sobre una orden; «%1 --version», la versión.</translation>
    </message>
    <message>
        <source>Exit status: 0 done; 1 done, with something to report; 2 wrong usage; 3 failed.</source>
        <translation>Estado de salida: 0 hecho; 1 hecho, con algo que señalar; 2 uso incorrecto; 3 error.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>No command is given.</source>
        <translation>No se ha dado ninguna orden.</translation>
    </message>
    <message>
        <source>Unknown option: %1</source>
        <translation>Opción desconocida: %1</translation>
    </message>
    <message>
        <source>Unknown command: %1</source>
        <translation>Orden desconocida: %1</translation>
    </message>
    <message>
        <source>Merge three copies of a project folder</source>
        <translation>Fusiona tres copias de una carpeta de proyecto</translation>
    </message>
    <message>
        <source>Merge three versions of a file, for git too: prints the result or writes it to FILE; a NAME that ends in “.json” must stay valid</source>
        <translation>Fusiona tres versiones de un archivo, también para git: muestra el resultado o lo escribe en FILE; un NAME que acabe en «.json» debe seguir siendo válido</translation>
    </message>
    <message>
        <source>Make an empty project</source>
        <translation>Crea un proyecto vacío</translation>
    </message>
    <message>
        <source>Save a project as a folder or as a “.vellum” file</source>
        <translation>Guarda un proyecto como carpeta o como archivo «.vellum»</translation>
    </message>
    <message>
        <source>Pack a folder into a “.vellum” file</source>
        <translation>Empaqueta una carpeta en un archivo «.vellum»</translation>
    </message>
    <message>
        <source>Unpack a “.vellum” file into a folder</source>
        <translation>Desempaqueta un archivo «.vellum» en una carpeta</translation>
    </message>
    <message>
        <source>Make a project from a “markdown” or “text” source, or add to one</source>
        <translation>Crea un proyecto a partir de un origen «markdown» o «text», o añade a uno</translation>
    </message>
    <message>
        <source>Write a copy that loads, and name each file that it leaves out</source>
        <translation>Escribe una copia que se puede abrir y nombra cada archivo omitido</translation>
    </message>
    <message>
        <source>List the backups of a project, newest first: file, date, size in bytes, documents, words</source>
        <translation>Enumera las copias de seguridad de un proyecto, la más reciente primero: archivo, fecha, tamaño en bytes, documentos, palabras</translation>
    </message>
</context>
<context>
    <name>vl::cli::Main</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
</context>
<context>
    <name>vl::cli::ProjectWriting</name>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>No se pudo escribir un archivo del proyecto: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>No se pudo crear la carpeta para: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>No se puede crear la carpeta del proyecto: %1</translation>
    </message>
    <message>
        <source>Another project stands there: %1</source>
        <translation>Ahí hay otro proyecto: %1</translation>
    </message>
    <message>
        <source>The folder is not an Ivorel project (no project.json): %1</source>
        <translation>La carpeta no es un proyecto de Ivorel (falta project.json): %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::TextFile</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot read from standard input.</source>
        <translation>No se puede leer la entrada estándar.</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::WriteAccess</name>
    <message>
        <source>The project may be open in another program: %1</source>
        <translation>Es posible que el proyecto esté abierto en otro programa: %1</translation>
    </message>
    <message>
        <source>Nobody knows who has it open: its lock cannot be read.</source>
        <translation>No se sabe quién lo tiene abierto: su bloqueo no se puede leer.</translation>
    </message>
    <message>
        <source>The project is open in another program: %1</source>
        <translation>El proyecto está abierto en otro programa: %1</translation>
    </message>
    <message>
        <source>%1 has it open on “%2” (process %3) since %4.</source>
        <translation>%1 lo tiene abierto en «%2» (proceso %3) desde %4.</translation>
    </message>
    <message>
        <source>Close it there, then try again.</source>
        <translation>Ciérrelo allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>If no program has it open any more, try again with --anyway.</source>
        <translation>Si ya ningún programa lo tiene abierto, inténtelo de nuevo con --anyway.</translation>
    </message>
</context>
<context>
    <name>vl::core::Command</name>
    <message>
        <source>Set field value</source>
        <translation>Cambiar el valor de un campo</translation>
    </message>
    <message>
        <source>Add category</source>
        <translation>Añadir categoría</translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation>Eliminar categoría</translation>
    </message>
    <message>
        <source>Rename category</source>
        <translation>Cambiar el nombre de la categoría</translation>
    </message>
    <message>
        <source>Move category</source>
        <translation>Mover categoría</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Remove field</source>
        <translation>Eliminar campo</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Mover campo</translation>
    </message>
    <message>
        <source>Edit field</source>
        <translation>Editar campo</translation>
    </message>
    <message>
        <source>Rename entity</source>
        <translation>Cambiar el nombre de la entidad</translation>
    </message>
    <message>
        <source>Move entity</source>
        <translation>Mover entidad</translation>
    </message>
    <message>
        <source>Set aliases</source>
        <translation>Cambiar los alias</translation>
    </message>
    <message>
        <source>Set entity gallery</source>
        <translation>Cambiar la galería de la entidad</translation>
    </message>
    <message>
        <source>Edit lifespan</source>
        <translation>Editar la duración de la vida</translation>
    </message>
    <message>
        <source>Set state over time</source>
        <translation>Cambiar el estado a lo largo del tiempo</translation>
    </message>
    <message>
        <source>Edit document body</source>
        <translation>Editar el texto</translation>
    </message>
    <message>
        <source>Move document</source>
        <translation>Mover documento</translation>
    </message>
    <message>
        <source>Rename document</source>
        <translation>Cambiar el nombre del documento</translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation>Cambiar el tipo de documento</translation>
    </message>
    <message>
        <source>Edit synopsis</source>
        <translation>Editar la sinopsis</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>Editar el estado</translation>
    </message>
    <message>
        <source>Edit point of view</source>
        <translation>Editar el punto de vista</translation>
    </message>
    <message>
        <source>Edit tension</source>
        <translation>Editar la tensión</translation>
    </message>
    <message>
        <source>Set scene date</source>
        <translation>Fijar la fecha de la escena</translation>
    </message>
    <message>
        <source>Set word-count target</source>
        <translation>Fijar el objetivo de palabras</translation>
    </message>
    <message>
        <source>Cite source</source>
        <translation>Citar fuente</translation>
    </message>
    <message>
        <source>Tag scene plot threads</source>
        <translation>Asignar tramas a la escena</translation>
    </message>
    <message>
        <source>Mark screenplay revision</source>
        <translation>Marcar una revisión del guion</translation>
    </message>
    <message>
        <source>Edit version history</source>
        <translation>Editar el historial de versiones</translation>
    </message>
    <message>
        <source>Edit document variants</source>
        <translation>Editar las variantes del documento</translation>
    </message>
    <message>
        <source>Edit footnotes</source>
        <translation>Editar las notas al pie</translation>
    </message>
    <message>
        <source>Add object</source>
        <translation>Añadir objeto</translation>
    </message>
    <message>
        <source>Remove object</source>
        <translation>Eliminar objeto</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fijar</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Dejar de fijar</translation>
    </message>
    <message>
        <source>Set AI exclusion</source>
        <translation>Cambiar la exclusión de la IA</translation>
    </message>
    <message>
        <source>Set tags</source>
        <translation>Cambiar las etiquetas</translation>
    </message>
    <message>
        <source>Set visibility</source>
        <translation>Cambiar la visibilidad</translation>
    </message>
    <message>
        <source>Update entity templates</source>
        <translation>Actualizar las plantillas de entidad</translation>
    </message>
    <message>
        <source>Update saved searches</source>
        <translation>Actualizar las búsquedas guardadas</translation>
    </message>
    <message>
        <source>Edit audiences</source>
        <translation>Editar los públicos</translation>
    </message>
    <message>
        <source>Edit plot threads</source>
        <translation>Editar las tramas</translation>
    </message>
    <message>
        <source>Set continuity rules</source>
        <translation>Cambiar las reglas de continuidad</translation>
    </message>
    <message>
        <source>Set calendar</source>
        <translation>Cambiar el calendario</translation>
    </message>
    <message>
        <source>Set reckonings</source>
        <translation>Cambiar los cómputos</translation>
    </message>
    <message>
        <source>Set timeline eras</source>
        <translation>Cambiar las eras</translation>
    </message>
    <message>
        <source>Set timeline markers</source>
        <translation>Cambiar los marcadores</translation>
    </message>
    <message>
        <source>Set timeline bookmarks</source>
        <translation>Cambiar los señaladores</translation>
    </message>
    <message>
        <source>Change timeline view</source>
        <translation>Cambiar la vista de la línea de tiempo</translation>
    </message>
    <message>
        <source>Update timeline view presets</source>
        <translation>Actualizar los ajustes de vista</translation>
    </message>
    <message>
        <source>Edit beat sheet</source>
        <translation>Editar la escaleta</translation>
    </message>
    <message>
        <source>Set writing goal</source>
        <translation>Fijar el objetivo de escritura</translation>
    </message>
    <message>
        <source>Update mounted libraries</source>
        <translation>Actualizar las bibliotecas montadas</translation>
    </message>
    <message>
        <source>Complete task</source>
        <translation>Completar tarea</translation>
    </message>
    <message>
        <source>Reopen task</source>
        <translation>Reabrir tarea</translation>
    </message>
    <message>
        <source>Move task</source>
        <translation>Mover tarea</translation>
    </message>
    <message>
        <source>Edit cell</source>
        <translation>Editar celda</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Editar gráfico</translation>
    </message>
    <message>
        <source>Edit comment</source>
        <translation>Editar comentario</translation>
    </message>
    <message>
        <source>Move comment</source>
        <translation>Mover comentario</translation>
    </message>
    <message>
        <source>Rename spreadsheet</source>
        <translation>Cambiar el nombre de la hoja</translation>
    </message>
    <message>
        <source>Update spreadsheet</source>
        <translation>Actualizar la hoja</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Cambiar el tamaño</translation>
    </message>
    <message>
        <source>Bind spreadsheet to category</source>
        <translation>Vincular la hoja a una categoría</translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation>Cambiar el nombre de la tarea</translation>
    </message>
    <message>
        <source>Edit task details</source>
        <translation>Editar los detalles de la tarea</translation>
    </message>
    <message>
        <source>Change task due date</source>
        <translation>Cambiar el vencimiento de la tarea</translation>
    </message>
    <message>
        <source>Change task priority</source>
        <translation>Cambiar la prioridad de la tarea</translation>
    </message>
    <message>
        <source>Change task status</source>
        <translation>Cambiar el estado de la tarea</translation>
    </message>
    <message>
        <source>Move task to board</source>
        <translation>Mover la tarea a otro tablero</translation>
    </message>
    <message>
        <source>Change submission details</source>
        <translation>Cambiar los datos del envío</translation>
    </message>
    <message>
        <source>Link task</source>
        <translation>Vincular tarea</translation>
    </message>
    <message>
        <source>Move card</source>
        <translation>Mover tarjeta</translation>
    </message>
    <message>
        <source>Remove card</source>
        <translation>Quitar tarjeta</translation>
    </message>
    <message>
        <source>Connect cards</source>
        <translation>Conectar tarjetas</translation>
    </message>
    <message>
        <source>Disconnect cards</source>
        <translation>Desconectar tarjetas</translation>
    </message>
    <message>
        <source>Add annotation</source>
        <translation>Añadir anotación</translation>
    </message>
    <message>
        <source>Remove annotation</source>
        <translation>Eliminar anotación</translation>
    </message>
    <message>
        <source>Rename timeline</source>
        <translation>Cambiar el nombre de la línea de tiempo</translation>
    </message>
    <message>
        <source>Edit timeline event</source>
        <translation>Editar acontecimiento</translation>
    </message>
    <message>
        <source>Edit language</source>
        <translation>Editar idioma</translation>
    </message>
    <message>
        <source>Edit random table</source>
        <translation>Editar tabla aleatoria</translation>
    </message>
    <message>
        <source>Edit source</source>
        <translation>Editar fuente</translation>
    </message>
    <message>
        <source>Edit stat block</source>
        <translation>Editar ficha</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Editar el pie</translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation>Recortar imagen</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Cambiar el nombre del mapa</translation>
    </message>
    <message>
        <source>Set map image</source>
        <translation>Cambiar la imagen del mapa</translation>
    </message>
    <message>
        <source>Edit map pins</source>
        <translation>Editar las chinchetas del mapa</translation>
    </message>
    <message>
        <source>Edit map regions</source>
        <translation>Editar las regiones del mapa</translation>
    </message>
    <message>
        <source>Edit map routes</source>
        <translation>Editar las rutas del mapa</translation>
    </message>
    <message>
        <source>Edit map tokens</source>
        <translation>Editar las fichas del mapa</translation>
    </message>
    <message>
        <source>Edit map grid</source>
        <translation>Editar la cuadrícula del mapa</translation>
    </message>
    <message>
        <source>Set map travel settings</source>
        <translation>Cambiar los ajustes de viaje</translation>
    </message>
    <message>
        <source>Rename canvas</source>
        <translation>Cambiar el nombre del lienzo</translation>
    </message>
</context>
<context>
    <name>vl::desktop::AboutDialog</name>
    <message>
        <source>About Ivorel</source>
        <translation>Acerca de Ivorel</translation>
    </message>
    <message>
        <source>Ivorel %1</source>
        <translation>Ivorel %1</translation>
    </message>
    <message>
        <source>A workspace for writing and worldbuilding.</source>
        <translation>Un espacio de trabajo para escribir y crear mundos.</translation>
    </message>
    <message>
        <source>Runs with Qt %1.</source>
        <translation>Funciona con Qt %1.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open the folder: %1</source>
        <translation>Abrir la carpeta: %1</translation>
    </message>
    <message>
        <source>Third-party software and its licences</source>
        <translation>Software de terceros y sus licencias</translation>
    </message>
    <message>
        <source>Replaced versions</source>
        <translation>Versiones reemplazadas</translation>
    </message>
</context>
<context>
    <name>vl::desktop::AppearancePage</name>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Texts of the interface</source>
        <translation>Textos de la interfaz</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Font &amp;scale:</source>
        <translation>E&amp;scala de la letra:</translation>
    </message>
</context>
<context>
    <name>vl::desktop::BackupsDialog</name>
    <message>
        <source>Open a &amp;Copy…</source>
        <translation>Abrir una &amp;copia…</translation>
    </message>
    <message>
        <source>&amp;Restore This Document…</source>
        <translation>&amp;Restaurar este documento…</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Ivorel makes a backup when you open a project, when you close it and once a day, if anything changed.</source>
        <translation>Ivorel hace una copia de seguridad al abrir un proyecto, al cerrarlo y una vez al día, si algo ha cambiado.</translation>
    </message>
    <message>
        <source>There are no backups of this project yet.</source>
        <translation>Aún no hay copias de seguridad de este proyecto.</translation>
    </message>
    <message>
        <source>They are in %1</source>
        <translation>Están en %1</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>Mostrar la car&amp;peta</translation>
    </message>
    <message>
        <source>&amp;Back Up Now</source>
        <translation>&amp;Hacer una copia ahora</translation>
    </message>
</context>
<context>
    <name>vl::desktop::BackupsPage</name>
    <message>
        <source>Made by themselves</source>
        <translation>Automáticas</translation>
    </message>
    <message>
        <source>Where they lie</source>
        <translation>Dónde están</translation>
    </message>
    <message>
        <source>Folder of the backups</source>
        <translation>Carpeta de las copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Abrir carpeta</translation>
    </message>
    <message>
        <source>Backups of This &amp;Project…</source>
        <translation>Copias de este &amp;proyecto…</translation>
    </message>
    <message>
        <source>&amp;Back up projects without being asked</source>
        <translation>&amp;Copiar los proyectos sin que haya que pedirlo</translation>
    </message>
    <message>
        <source>A project is backed up when it is opened, when it is closed and once a day, unless the newest backup holds the same. The last five are kept, one a day of the last week, one a week of the last two months, and those that you made yourself.</source>
        <translation>Se hace una copia de seguridad del proyecto al abrirlo, al cerrarlo y una vez al día, salvo que la más reciente contenga lo mismo. Se conservan las cinco últimas, una por día de la última semana, una por semana de los dos últimos meses y las que haya hecho usted.</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Folder of the Backups</source>
        <translation>Carpeta de las copias de seguridad</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ChoiceFieldEditor</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 (no option)</source>
        <translation>%1 (no es una opción)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CodexDialogs</name>
    <message>
        <source>Merge Entities</source>
        <translation>Fusionar entidades</translation>
    </message>
    <message>
        <source>“%1” becomes a part of “%2”: its name stays as an alias, and what refers to it refers to “%2”.</source>
        <translation>«%1» pasa a formar parte de «%2»: su nombre queda como alias y lo que se refiere a ella se refiere a «%2».</translation>
    </message>
    <message>
        <source>“%1” becomes a part of “%2”. Where both have a value, which one stays?</source>
        <translation>«%1» pasa a formar parte de «%2». Donde ambas tienen un valor, ¿cuál se queda?</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionar</translation>
    </message>
    <message>
        <source>Split Entity</source>
        <translation>Dividir entidad</translation>
    </message>
    <message>
        <source>A part of “%1” becomes an entity of its own. What does it take along?</source>
        <translation>Una parte de «%1» pasa a ser una entidad propia. ¿Qué se lleva?</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Name of the new entity</source>
        <translation>Nombre de la entidad nueva</translation>
    </message>
    <message>
        <source>Fields and aliases</source>
        <translation>Campos y alias</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>Manage Entity Templates</source>
        <translation>Gestionar las plantillas de entidad</translation>
    </message>
    <message>
        <source>Rename a template in the list; drag to put it elsewhere.</source>
        <translation>Cambie el nombre de una plantilla en la lista; arrástrela para ponerla en otro sitio.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Entity templates</source>
        <translation>Plantillas de entidad</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar el nombre</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CodexPanel</name>
    <message>
        <source>Category…</source>
        <translation>Categoría…</translation>
    </message>
    <message>
        <source>Subcategory…</source>
        <translation>Subcategoría…</translation>
    </message>
    <message>
        <source>Entity…</source>
        <translation>Entidad…</translation>
    </message>
    <message>
        <source>Entity from Template…</source>
        <translation>Entidad a partir de plantilla…</translation>
    </message>
    <message>
        <source>Field…</source>
        <translation>Campo…</translation>
    </message>
    <message>
        <source>Task for Entity…</source>
        <translation>Tarea para la entidad…</translation>
    </message>
    <message>
        <source>Rename Entity…</source>
        <translation>Cambiar el nombre de la entidad…</translation>
    </message>
    <message>
        <source>Duplicate Entity</source>
        <translation>Duplicar entidad</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Rename Category…</source>
        <translation>Cambiar el nombre de la categoría…</translation>
    </message>
    <message>
        <source>Delete Entity</source>
        <translation>Eliminar entidad</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Eliminar categoría</translation>
    </message>
    <message>
        <source>Toggle Pin</source>
        <translation>Fijar o soltar</translation>
    </message>
    <message>
        <source>Edit Tags…</source>
        <translation>Editar etiquetas…</translation>
    </message>
    <message>
        <source>Save Entity as Template…</source>
        <translation>Guardar la entidad como plantilla…</translation>
    </message>
    <message>
        <source>Manage Entity Templates…</source>
        <translation>Gestionar las plantillas de entidad…</translation>
    </message>
    <message>
        <source>Merge Entity Into…</source>
        <translation>Fusionar la entidad con…</translation>
    </message>
    <message>
        <source>Split Entity…</source>
        <translation>Dividir la entidad…</translation>
    </message>
    <message>
        <source>State Over Time…</source>
        <translation>Estado a lo largo del tiempo…</translation>
    </message>
    <message>
        <source>Draft Details with AI…</source>
        <translation>Redactar detalles con IA…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>New Entity</source>
        <translation>Entidad nueva</translation>
    </message>
    <message>
        <source>New ▾</source>
        <translation>Nuevo ▾</translation>
    </message>
    <message>
        <source>Add to the codex</source>
        <translation>Añadir al códice</translation>
    </message>
    <message>
        <source>More ▾</source>
        <translation>Más ▾</translation>
    </message>
    <message>
        <source>Change what is selected in the codex</source>
        <translation>Cambia lo seleccionado en el códice</translation>
    </message>
    <message>
        <source>Filter the codex by name, alias or tag</source>
        <translation>Filtrar el códice por nombre, alias o etiqueta</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Códice</translation>
    </message>
    <message>
        <source>Your worldbuilding codex: categories and entities. Right-click for actions; F2 renames, Del deletes.</source>
        <translation>El códice de su mundo: categorías y entidades. Botón derecho para las acciones; F2 cambia el nombre, Supr elimina.</translation>
    </message>
    <message>
        <source>The people, places and things of your world stand here, sorted into categories.</source>
        <translation>Aquí están las personas, los lugares y las cosas de su mundo, ordenados por categorías.</translation>
    </message>
    <message>
        <source>Add the First Category</source>
        <translation>Añadir la primera categoría</translation>
    </message>
    <message>
        <source>Nothing in the codex has this name, alias or tag.</source>
        <translation>Nada en el códice tiene este nombre, alias o etiqueta.</translation>
    </message>
    <message>
        <source>Clear the Filter</source>
        <translation>Borrar el filtro</translation>
    </message>
    <message>
        <source>Entity from Template</source>
        <translation>Entidad a partir de plantilla</translation>
    </message>
    <message>
        <source>Template:</source>
        <translation>Plantilla:</translation>
    </message>
    <message>
        <source>Add Entity</source>
        <translation>Añadir entidad</translation>
    </message>
    <message>
        <source>The field “%1” was added.</source>
        <translation>Se añadió el campo «%1».</translation>
    </message>
    <message>
        <source>Task for Entity</source>
        <translation>Tarea para la entidad</translation>
    </message>
    <message>
        <source>Task:</source>
        <translation>Tarea:</translation>
    </message>
    <message>
        <source>The task “%1” was added.</source>
        <translation>Se añadió la tarea «%1».</translation>
    </message>
    <message>
        <source>%1 done.</source>
        <translation>%1: hecho.</translation>
    </message>
    <message>
        <source>Tags that all of them have, separated by commas:</source>
        <translation>Etiquetas que todos tienen, separadas por comas:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Etiquetas, separadas por comas:</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>Editar etiquetas</translation>
    </message>
    <message>
        <source>Save Entity as Template</source>
        <translation>Guardar la entidad como plantilla</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>The template “%1” was saved.</source>
        <translation>Se guardó la plantilla «%1».</translation>
    </message>
    <message>
        <source>Merge Entity Into</source>
        <translation>Fusionar la entidad con</translation>
    </message>
    <message>
        <source>Merge “%1” into:</source>
        <translation>Fusionar «%1» con:</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>“%1” was merged.</source>
        <translation>«%1» se ha fusionado.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CrashRecovery</name>
    <message>
        <source>⚠ Not safe from a crash: %1</source>
        <translation>⚠ Sin protección ante un cierre inesperado: %1</translation>
    </message>
    <message>
        <source>What is not saved cannot be written to %1: %2. It is tried again every second; what you save is safe.</source>
        <translation>Lo que no está guardado no se puede escribir en %1: %2. Se vuelve a intentar cada segundo; lo que guarde está a salvo.</translation>
    </message>
    <message>
        <source>Ivorel was cut off before all was saved. Unsaved work was found: %1.</source>
        <translation>Ivorel se interrumpió antes de guardarlo todo. Se encontró trabajo sin guardar: %1.</translation>
    </message>
    <message>
        <source>&amp;Compare and Restore…</source>
        <translation>&amp;Comparar y recuperar…</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>A project that was never saved was found after Ivorel was cut off: %1.</source>
        <translation>Se encontró un proyecto nunca guardado tras la interrupción de Ivorel: %1.</translation>
    </message>
    <message>
        <source>&amp;Look and Restore…</source>
        <translation>&amp;Ver y recuperar…</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Unsaved work of “%1” was found after Ivorel was cut off: %2.</source>
        <translation>Se encontró trabajo sin guardar de «%1», de cuando Ivorel se cerró de golpe: %2.</translation>
    </message>
    <message>
        <source>&amp;Open “%1”</source>
        <translation>&amp;Abrir «%1»</translation>
    </message>
    <message>
        <source>Unsaved work of “%1” was found after Ivorel was cut off: %2. The project is not there any more: %3</source>
        <translation>Se encontró trabajo sin guardar de «%1», de cuando Ivorel se cerró de golpe: %2. El proyecto ya no está: %3</translation>
    </message>
    <message>
        <source>&amp;Find the Project…</source>
        <translation>&amp;Buscar el proyecto…</translation>
    </message>
    <message>
        <source>Restore as a &amp;New Project</source>
        <translation>Recuperar como proyecto &amp;nuevo</translation>
    </message>
    <message numerus="yes">
        <source>Discarded. File › Unsaved Work… keeps it for %n day(s).</source>
        <translation>
            <numerusform>Descartado. Archivo › Trabajo sin guardar… lo conserva %n día.</numerusform>
            <numerusform>Descartado. Archivo › Trabajo sin guardar… lo conserva %n días.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved Work</source>
        <translation>Trabajo sin guardar</translation>
    </message>
    <message>
        <source>What was found cannot be read, and nothing was restored.</source>
        <translation>Lo que se encontró no se puede leer y no se recuperó nada.</translation>
    </message>
    <message>
        <source>The unsaved work is restored.</source>
        <translation>El trabajo sin guardar se ha restaurado.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>not decided</source>
        <translation>sin decidir</translation>
    </message>
    <message>
        <source>%1 (%2): %3</source>
        <comment>project, time, what it holds</comment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message numerus="yes">
        <source>Nothing unsaved was found in the last %n day(s).</source>
        <translation>
            <numerusform>No se encontró nada sin guardar en el último %n día.</numerusform>
            <numerusform>No se encontró nada sin guardar en los últimos %n días.</numerusform>
        </translation>
    </message>
    <message>
        <source>Work that was not saved when Ivorel was cut off:</source>
        <translation>Trabajo que no estaba guardado cuando Ivorel se cerró de golpe:</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>All of it is in the project.</source>
        <translation>Todo ello está en el proyecto.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DamagedProjectDialog</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>The project does not load. Nothing in it was changed.</source>
        <translation>El proyecto no se puede abrir. No se ha cambiado nada en él.</translation>
    </message>
    <message numerus="yes">
        <source>A repaired copy leaves out %n file(s):</source>
        <translation>
            <numerusform>Una copia reparada omite %n archivo:</numerusform>
            <numerusform>Una copia reparada omite %n archivos:</numerusform>
        </translation>
    </message>
    <message>
        <source>Files that a repaired copy leaves out</source>
        <translation>Archivos que omite una copia reparada</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Open newest &amp;backup</source>
        <translation>Abrir la &amp;copia de seguridad más reciente</translation>
    </message>
    <message>
        <source>As a copy in a place that you choose. It was made: %1</source>
        <translation>Como copia en el lugar que elija. Se hizo: %1</translation>
    </message>
    <message>
        <source>In a place that you choose; this project stays as it is.</source>
        <translation>En el lugar que elija; este proyecto se queda como está.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged file(s) can be taken from the working copy.</source>
        <translation>
            <numerusform>%n archivo dañado se puede tomar de la copia de trabajo.</numerusform>
            <numerusform>%n archivos dañados se pueden tomar de la copia de trabajo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make a &amp;repaired copy without the damaged files</source>
        <translation>Hacer una copia &amp;reparada sin los archivos dañados</translation>
    </message>
    <message>
        <source>&amp;Set the conflicting copies aside</source>
        <translation>&amp;Apartar las copias en conflicto</translation>
    </message>
    <message>
        <source>They go into the folder “conflicting copies” of the project, then it opens.</source>
        <translation>Pasan a la carpeta «conflicting copies» del proyecto y después este se abre.</translation>
    </message>
    <message>
        <source>The list of what the file holds is damaged or missing too: more may be gone than can be named.</source>
        <translation>También falta o está dañada la lista de lo que contiene el archivo: puede faltar más de lo que se puede nombrar.</translation>
    </message>
    <message>
        <source>“%1” (%2)</source>
        <translation>«%1» (%2)</translation>
    </message>
    <message>
        <source>What can still be read of it:</source>
        <translation>Lo que aún se puede leer de él:</translation>
    </message>
    <message>
        <source>In the newest backup:</source>
        <translation>En la copia de seguridad más reciente:</translation>
    </message>
    <message>
        <source>Conflicting copy of “%1” (%2)</source>
        <translation>Copia en conflicto de «%1» (%2)</translation>
    </message>
    <message>
        <source>The file that stays in red (−), the conflicting copy in green (+)</source>
        <translation>El archivo que se queda en rojo (−), la copia en conflicto en verde (+)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DialogPrompts</name>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>«%1» tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>What you wrote since the last save is lost if you discard it.</source>
        <translation>Si los descarta, se pierde lo escrito desde la última vez que guardó.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Descartar los cambios</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Ivorel projects (*.vellum)</source>
        <translation>Proyectos de Ivorel (*.vellum)</translation>
    </message>
    <message>
        <source>Open Project Folder</source>
        <translation>Abrir carpeta de proyecto</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Guardar el proyecto como</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>Its contents are replaced.</source>
        <translation>Su contenido se sustituye.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sustituir</translation>
    </message>
    <message>
        <source>Save Project as Folder</source>
        <translation>Guardar el proyecto como carpeta</translation>
    </message>
    <message>
        <source>“%1” is open already.</source>
        <translation>«%1» ya está abierto.</translation>
    </message>
    <message>
        <source>Nobody knows who has it open: its lock cannot be read.</source>
        <translation>No se sabe quién lo tiene abierto: su bloqueo no se puede leer.</translation>
    </message>
    <message>
        <source>%1 has it open on “%2” (process %3) since %4.</source>
        <translation>%1 lo tiene abierto en «%2» (proceso %3) desde %4.</translation>
    </message>
    <message>
        <source>If no program has it open any more, a crash or a broken connection left the lock behind; then open it anyway.</source>
        <translation>Si ningún programa lo tiene ya abierto, el bloqueo quedó de un fallo o de una conexión rota; entonces ábralo de todos modos.</translation>
    </message>
    <message>
        <source>Open a &amp;Copy…</source>
        <translation>Abrir una &amp;copia…</translation>
    </message>
    <message>
        <source>Open &amp;Read-Only</source>
        <translation>Abrir en &amp;solo lectura</translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation>Abrir de &amp;todos modos</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>Both are the same.</source>
        <translation>Los dos son iguales.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DistractionFree</name>
    <message>
        <source>Distraction-Free Mode</source>
        <translation>Modo sin distracciones</translation>
    </message>
    <message>
        <source>Word count</source>
        <translation>Número de palabras</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DocumentsPanel</name>
    <message>
        <source>New ▾</source>
        <translation>Nuevo ▾</translation>
    </message>
    <message>
        <source>New document or note</source>
        <translation>Documento o nota nuevos</translation>
    </message>
    <message>
        <source>Add a document or a note behind the selected one.</source>
        <translation>Añade un documento o una nota detrás del seleccionado.</translation>
    </message>
    <message>
        <source>Filter the documents by title</source>
        <translation>Filtrar los documentos por título</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>The manuscript: documents and notes. Drag to reorder or drop onto another to nest; right-click for actions; Ins adds, F2 renames, Del deletes.</source>
        <translation>El manuscrito: documentos y notas. Arrastre para reordenar o suelte sobre otro para anidar; clic derecho para las acciones; Ins añade, F2 cambia el nombre, Supr elimina.</translation>
    </message>
    <message>
        <source>The chapters and scenes of your manuscript stand here.</source>
        <translation>Aquí están los capítulos y las escenas de su manuscrito.</translation>
    </message>
    <message>
        <source>Write the First Document</source>
        <translation>Escribir el primer documento</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar el nombre</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>Prose</source>
        <translation>Prosa</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Edit › Undo will restore it.</source>
        <translation>Edición › Deshacer lo recupera.</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n document(s).</source>
        <translation>
            <numerusform>Se eliminó %n documento.</numerusform>
            <numerusform>Se eliminaron %n documentos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Document(s)</source>
        <translation>
            <numerusform>Eliminar %n documento</numerusform>
            <numerusform>Eliminar %n documentos</numerusform>
        </translation>
    </message>
    <message>
        <source>Task for Document</source>
        <translation>Tarea para el documento</translation>
    </message>
    <message>
        <source>Task:</source>
        <translation>Tarea:</translation>
    </message>
    <message>
        <source>The task “%1” was added.</source>
        <translation>Se añadió la tarea «%1».</translation>
    </message>
    <message>
        <source>Change Kind</source>
        <translation>Cambiar el tipo</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>No document has this title.</source>
        <translation>Ningún documento tiene este título.</translation>
    </message>
    <message>
        <source>Clear the Filter</source>
        <translation>Borrar el filtro</translation>
    </message>
    <message>
        <source>More ▾</source>
        <translation>Más ▾</translation>
    </message>
    <message>
        <source>Change the selected documents</source>
        <translation>Cambiar los documentos seleccionados</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Download</name>
    <message>
        <source>The server took too long to answer.</source>
        <translation>El servidor tardó demasiado en responder.</translation>
    </message>
    <message>
        <source>The address is not a secure one.</source>
        <translation>La dirección no es segura.</translation>
    </message>
    <message>
        <source>The server sent more than was expected.</source>
        <translation>El servidor envió más de lo esperado.</translation>
    </message>
    <message>
        <source>The server sent the program elsewhere.</source>
        <translation>El servidor envió el programa a otro sitio.</translation>
    </message>
    <message>
        <source>The server sent the program round in circles.</source>
        <translation>El servidor hizo dar vueltas al programa.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::EditorPage</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Best installed reading font</source>
        <translation>La mejor letra de lectura instalada</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Letra:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Line &amp;width:</source>
        <translation>A&amp;ncho de línea:</translation>
    </message>
    <message>
        <source> characters</source>
        <translation> caracteres</translation>
    </message>
    <message>
        <source>Line s&amp;pacing:</source>
        <translation>&amp;Interlineado:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Typographic &amp;quotes and dashes</source>
        <translation>&amp;Comillas y rayas tipográficas</translation>
    </message>
    <message>
        <source>Turns straight ones into them as you type.</source>
        <translation>Convierte las rectas mientras escribe.</translation>
    </message>
    <message>
        <source>T&amp;ypewriter scrolling</source>
        <translation>Desplazamiento de má&amp;quina de escribir</translation>
    </message>
    <message>
        <source>Keeps the line being written at the same height.</source>
        <translation>Mantiene a la misma altura la línea que se escribe.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::EditorPanel</name>
    <message>
        <source>Text of the document</source>
        <translation>Texto del documento</translation>
    </message>
    <message>
        <source>Select a document to write in it.</source>
        <translation>Seleccione un documento para escribir en él.</translation>
    </message>
    <message>
        <source>Title of the document</source>
        <translation>Título del documento</translation>
    </message>
    <message>
        <source>Word count</source>
        <translation>Número de palabras</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Documento nuevo</translation>
    </message>
    <message>
        <source>Today %1 · %2</source>
        <comment>words typed today, words of the document</comment>
        <translation>Hoy %1 · %2</translation>
    </message>
    <message>
        <source>Today: words typed less words deleted. Pasted text is not counted.</source>
        <translation>Hoy: palabras escritas menos palabras borradas. El texto pegado no cuenta.</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Insert Picture</source>
        <translation>Insertar imagen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln palabra</numerusform>
            <numerusform>%Ln palabras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::ExternalChangesDialog</name>
    <message>
        <source>&amp;Keep my version</source>
        <translation>&amp;Conservar mi versión</translation>
    </message>
    <message>
        <source>&amp;Take on-disk version</source>
        <translation>&amp;Tomar la versión del disco</translation>
    </message>
    <message>
        <source>&amp;Edit merged text…</source>
        <translation>&amp;Editar el texto fusionado…</translation>
    </message>
    <message>
        <source>&amp;Apply Resolution</source>
        <translation>&amp;Aplicar la resolución</translation>
    </message>
    <message>
        <source>External Changes</source>
        <translation>Cambios externos</translation>
    </message>
    <message>
        <source>These files changed outside Ivorel while the project was open. Decide which version counts. The project is backed up before anything is applied, and applying it is one step that you can undo.</source>
        <translation>Estos archivos cambiaron fuera de Ivorel mientras el proyecto estaba abierto. Decida qué versión vale. Antes de aplicar nada se hace una copia de seguridad del proyecto, y aplicarlo es un solo paso que puede deshacer.</translation>
    </message>
    <message>
        <source>Changed files</source>
        <translation>Archivos cambiados</translation>
    </message>
    <message>
        <source>Differences for the selected file — your version in red (−), the on-disk version in green (+):</source>
        <translation>Diferencias del archivo seleccionado: su versión en rojo (−), la del disco en verde (+):</translation>
    </message>
    <message>
        <source>Where both changed the text, your lines stand first and those on disk after them, with marks around them. Make one text of it and remove the marks:</source>
        <translation>Donde ambos cambiaron el texto, sus líneas van primero y las del disco después, con marcas alrededor. Haga de ello un solo texto y quite las marcas:</translation>
    </message>
    <message>
        <source>Merged text</source>
        <translation>Texto fusionado</translation>
    </message>
    <message>
        <source>&amp;Use this text</source>
        <translation>&amp;Usar este texto</translation>
    </message>
    <message>
        <source>&amp;Back to the differences</source>
        <translation>&amp;Volver a las diferencias</translation>
    </message>
    <message>
        <source>The versions of this file cannot be edited into one text.</source>
        <translation>Las versiones de este archivo no se pueden editar en un solo texto.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>Every file is decided.</source>
        <translation>Todos los archivos están decididos.</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n file(s) still to be decided.</source>
        <translation>
            <numerusform>⚠ Queda %n archivo por decidir.</numerusform>
            <numerusform>⚠ Quedan %n archivos por decidir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldDialog</name>
    <message>
        <source>&amp;Options, one a line:</source>
        <translation>&amp;Opciones, una por línea:</translation>
    </message>
    <message>
        <source>To be filled for every &amp;entity</source>
        <translation>Se debe rellenar en cada enti&amp;dad</translation>
    </message>
    <message>
        <source>Options, one a line</source>
        <translation>Opciones, una por línea</translation>
    </message>
    <message>
        <source>Label of the field</source>
        <translation>Etiqueta del campo</translation>
    </message>
    <message>
        <source>Type of the field</source>
        <translation>Tipo del campo</translation>
    </message>
    <message>
        <source>What to fill in</source>
        <translation>Qué rellenar</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Etiqueta:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>&amp;Help text:</source>
        <translation>Texto de a&amp;yuda:</translation>
    </message>
    <message>
        <source>New Field of “%1”</source>
        <translation>Campo nuevo de «%1»</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Field “%1”</source>
        <translation>Campo «%1»</translation>
    </message>
    <message>
        <source>Change Field</source>
        <translation>Cambiar campo</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldEditor</name>
    <message>
        <source>(mixed)</source>
        <translation>(varios)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldListEditor</name>
    <message>
        <source>Every entity of the category, and of those below it, has these.</source>
        <translation>Los tiene cada entidad de la categoría y de las que están por debajo.</translation>
    </message>
    <message>
        <source>Add a field</source>
        <translation>Añadir un campo</translation>
    </message>
    <message>
        <source>Change the field</source>
        <translation>Cambiar el campo</translation>
    </message>
    <message>
        <source>Move the field up</source>
        <translation>Subir el campo</translation>
    </message>
    <message>
        <source>Move the field down</source>
        <translation>Bajar el campo</translation>
    </message>
    <message>
        <source>Remove the field</source>
        <translation>Quitar el campo</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1, to be filled</source>
        <translation>%1, por rellenar</translation>
    </message>
    <message>
        <source>The field was removed; what entities have in it is kept.</source>
        <translation>El campo se quitó; lo que las entidades tienen en él se conserva.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FindInProject</name>
    <message>
        <source>Manuscript</source>
        <translation>Manuscrito</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Synopses and Planning</source>
        <translation>Sinopsis y planificación</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Códice</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Everything Else</source>
        <translation>Todo lo demás</translation>
    </message>
    <message>
        <source>&amp;Replace with:</source>
        <translation>&amp;Reemplazar con:</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Find in Project</source>
        <translation>Buscar en el proyecto</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texto que buscar</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palabras completas</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>Text to replace it with</source>
        <translation>Texto que lo reemplaza</translation>
    </message>
    <message>
        <source>Keep the case of what is replaced</source>
        <translation>Conservar las mayúsculas de lo reemplazado</translation>
    </message>
    <message>
        <source>&amp;In:</source>
        <translation>&amp;En:</translation>
    </message>
    <message>
        <source>How far the search is</source>
        <translation>Avance de la búsqueda</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Lugares encontrados</translation>
    </message>
    <message>
        <source>How much was found</source>
        <translation>Cuánto se encontró</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation>En ninguna parte</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Where to search: %1</source>
        <translation>Dónde buscar: %1</translation>
    </message>
    <message>
        <source>The first %1 places are listed.</source>
        <translation>Se muestran los primeros %1 lugares.</translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) in %1</source>
        <translation>
            <numerusform>%n lugar en %1</numerusform>
            <numerusform>%n lugares en %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n objeto</numerusform>
            <numerusform>%n objetos</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a word in the manuscript, the notes, the codex, the comments and all other texts of the project.</source>
        <translation>Busque una palabra en el manuscrito, las notas, el códice, los comentarios y todos los demás textos del proyecto.</translation>
    </message>
    <message>
        <source>“%1” is nowhere to be found.</source>
        <translation>«%1» no aparece en ninguna parte.</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n &amp;Place(s)</source>
        <translation>
            <numerusform>Reemplazar %n &amp;lugar</numerusform>
            <numerusform>Reemplazar %n &amp;lugares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %n place(s) in %1.</source>
        <translation>
            <numerusform>Se reemplazó %n lugar en %1.</numerusform>
            <numerusform>Se reemplazaron %n lugares en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) had changed since the search and stayed as they are.</source>
        <translation>
            <numerusform>%n lugar había cambiado desde la búsqueda y se quedó como está.</numerusform>
            <numerusform>%n lugares habían cambiado desde la búsqueda y se quedaron como están.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::FindStrip</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palabras completas</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>In the selection only</source>
        <translation>Solo en la selección</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Previous (Shift+Enter)</source>
        <translation>Anterior (Mayús+Intro)</translation>
    </message>
    <message>
        <source>Next (Enter)</source>
        <translation>Siguiente (Intro)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Cerrar (Esc)</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Reemplazar con</translation>
    </message>
    <message>
        <source>“Tide” becomes “Ebb” and “TIDE” becomes “EBB”.</source>
        <translation>«Marea» pasa a «Reflujo» y «MAREA», a «REFLUJO».</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Reem&amp;plazar</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>Reemplazar &amp;todo</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 reemplazados</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>más de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>the hit that is shown, all hits</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Keep the case of what is replaced</source>
        <translation>Conservar las mayúsculas de lo reemplazado</translation>
    </message>
</context>
<context>
    <name>vl::desktop::GeneralPage</name>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>&amp;Interface language:</source>
        <translation>&amp;Idioma de la interfaz:</translation>
    </message>
    <message>
        <source>Re&amp;open the last project</source>
        <translation>V&amp;olver a abrir el último proyecto</translation>
    </message>
</context>
<context>
    <name>vl::desktop::HandOver</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>The project could not be found: %1</source>
        <translation>No se encontró el proyecto: %1</translation>
    </message>
    <message>
        <source>Ivorel is already open. Where should “%1” open?</source>
        <translation>Ivorel ya está abierto. ¿Dónde quiere abrir «%1»?</translation>
    </message>
    <message>
        <source>This Window</source>
        <translation>Esta ventana</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Ventana nueva</translation>
    </message>
    <message>
        <source>A new window could not be opened.</source>
        <translation>No se pudo abrir una ventana nueva.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::InspectorPanel</name>
    <message>
        <source>Select a document or an entity to see and change what is known of it.</source>
        <translation>Seleccione un documento o una entidad para ver y cambiar lo que se sabe de ello.</translation>
    </message>
    <message>
        <source>Show a Document</source>
        <translation>Mostrar un documento</translation>
    </message>
    <message>
        <source>What is selected</source>
        <translation>Lo seleccionado</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Layouts</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Save Current Layout</source>
        <translation>Guardar la disposición actual</translation>
    </message>
    <message>
        <source>The present arrangement takes its place.</source>
        <translation>La disposición actual ocupa su lugar.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sustituir</translation>
    </message>
    <message>
        <source>The perspective “%1” cannot be read; the first layout is shown instead.</source>
        <translation>La perspectiva «%1» no se puede leer; se muestra la disposición inicial en su lugar.</translation>
    </message>
    <message>
        <source>Deleted the perspective “%1”.</source>
        <translation>Se eliminó la perspectiva «%1».</translation>
    </message>
    <message>
        <source>Name of the perspective:</source>
        <translation>Nombre de la perspectiva:</translation>
    </message>
    <message>
        <source>“%1” is a perspective that comes with Ivorel. Choose another name.</source>
        <translation>«%1» es una perspectiva que trae Ivorel. Elija otro nombre.</translation>
    </message>
    <message>
        <source>There is a perspective “%1” already.</source>
        <translation>Ya hay una perspectiva «%1».</translation>
    </message>
    <message>
        <source>Saved the perspective “%1”.</source>
        <translation>Se guardó la perspectiva «%1».</translation>
    </message>
    <message>
        <source>Delete Perspective</source>
        <translation>Eliminar perspectiva</translation>
    </message>
    <message>
        <source>Perspective to delete:</source>
        <translation>Perspectiva que eliminar:</translation>
    </message>
</context>
<context>
    <name>vl::desktop::LevelFieldEditor</name>
    <message>
        <source>not set</source>
        <translation>sin valor</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(varios)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::MainToolBar</name>
    <message>
        <source>Main</source>
        <translation>Principal</translation>
    </message>
</context>
<context>
    <name>vl::desktop::MainWindow</name>
    <message>
        <source>Saved “%1”.</source>
        <translation>«%1» guardado.</translation>
    </message>
    <message>
        <source>%1[*] – Ivorel</source>
        <translation>%1[*] – Ivorel</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Why the project was not saved</source>
        <translation>Por qué no se guardó el proyecto</translation>
    </message>
    <message>
        <source>⚠ Not saved: %1</source>
        <translation>⚠ No guardado: %1</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Se guardó como %1.</translation>
    </message>
    <message>
        <source>The disk is full. %1</source>
        <translation>El disco está lleno. %1</translation>
    </message>
</context>
<context>
    <name>vl::desktop::NewProjectDialog</name>
    <message>
        <source>A single &amp;file</source>
        <translation>Un solo &amp;archivo</translation>
    </message>
    <message>
        <source>A f&amp;older of text files</source>
        <translation>Una carp&amp;eta de archivos de texto</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Where the project will stand</source>
        <translation>Dónde estará el proyecto</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>Nombre del proyecto</translation>
    </message>
    <message>
        <source>What you call the work for now</source>
        <translation>Cómo llama a la obra por ahora</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Lugar:</translation>
    </message>
    <message>
        <source>Folder that the project is made in</source>
        <translation>Carpeta en la que se crea el proyecto</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Ele&amp;gir…</translation>
    </message>
    <message>
        <source>One file that is easy to copy and to send.</source>
        <translation>Un archivo fácil de copiar y de enviar.</translation>
    </message>
    <message>
        <source>One small file a document: suits version control and sync.</source>
        <translation>Un archivo pequeño por documento: apropiado para control de versiones y sincronización.</translation>
    </message>
    <message>
        <source>Saved as:</source>
        <translation>Se guarda como:</translation>
    </message>
    <message>
        <source>Place of the Project</source>
        <translation>Lugar del proyecto</translation>
    </message>
    <message>
        <source>Give the project a name; it can be changed later.</source>
        <translation>Dé un nombre al proyecto; se puede cambiar después.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::NoticeBar</name>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Notices</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>What needs attention</source>
        <translation>Lo que pide atención</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ObjectTree</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Borrar el filtro</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PageView</name>
    <message>
        <source>Pages of the document</source>
        <translation>Páginas del documento</translation>
    </message>
    <message>
        <source>Laying out the pages…</source>
        <translation>Componiendo las páginas…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Palette</name>
    <message>
        <source>Command palette</source>
        <translation>Paleta de órdenes</translation>
    </message>
    <message>
        <source>Search documents and entities…</source>
        <translation>Buscar documentos y entidades…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo encontrado</translation>
    </message>
    <message>
        <source>How much was found</source>
        <translation>Cuánto se encontró</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>&gt; commands    # tags    @ headings    Ctrl+Enter: show and go on</source>
        <translation>&gt; órdenes    # etiquetas    @ títulos    Ctrl+Intro: mostrar y seguir</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PaletteHost</name>
    <message>
        <source>Go to Panel: %1</source>
        <translation>Ir al panel: %1</translation>
    </message>
    <message>
        <source>show, open</source>
        <translation>mostrar, abrir</translation>
    </message>
    <message>
        <source>Not possible at the moment</source>
        <translation>No es posible en este momento</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PickDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation>Filtrar la lista</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Borrar el filtro</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PicturesEditor</name>
    <message>
        <source>Add a picture of the project</source>
        <translation>Añadir una imagen del proyecto</translation>
    </message>
    <message>
        <source>Make it the cover</source>
        <translation>Usarla como portada</translation>
    </message>
    <message>
        <source>Take the picture away; it stays in the project</source>
        <translation>Quitar la imagen; sigue en el proyecto</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(falta)</translation>
    </message>
    <message>
        <source>Picture without a caption</source>
        <translation>Imagen sin pie</translation>
    </message>
    <message>
        <source>No picture yet.</source>
        <translation>Aún no hay ninguna imagen.</translation>
    </message>
    <message>
        <source>The first one is the cover.</source>
        <translation>La primera es la portada.</translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation>Añadir imagen</translation>
    </message>
    <message>
        <source>Picture of the project:</source>
        <translation>Imagen del proyecto:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PreferencesDialog</name>
    <message>
        <source>No page has these words.</source>
        <translation>Ninguna página contiene estas palabras.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Search preferences</source>
        <translation>Buscar en las preferencias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>&amp;Reset Page</source>
        <translation>&amp;Restablecer página</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ProjectCare</name>
    <message>
        <source>The project is backed up.</source>
        <translation>Se ha hecho la copia de seguridad.</translation>
    </message>
    <message>
        <source>Show Backups</source>
        <translation>Mostrar las copias</translation>
    </message>
    <message>
        <source>The newest backup holds the same already.</source>
        <translation>La copia más reciente ya contiene lo mismo.</translation>
    </message>
    <message>
        <source>Back Up Project</source>
        <translation>Copia de seguridad del proyecto</translation>
    </message>
    <message>
        <source>No backup was made: %1</source>
        <translation>No se hizo ninguna copia de seguridad: %1</translation>
    </message>
    <message>
        <source>%1 (backup)</source>
        <translation>%1 (copia de seguridad)</translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation>Abrir una copia</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>The document is restored.</source>
        <translation>El documento se ha restaurado.</translation>
    </message>
    <message>
        <source>What was deleted is restored.</source>
        <translation>Lo eliminado se ha restaurado.</translation>
    </message>
    <message>
        <source>The project is not saved yet: it has no backups.</source>
        <translation>El proyecto aún no está guardado: no tiene copias de seguridad.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ProjectTools</name>
    <message>
        <source>Ivorel Sample</source>
        <translation>Ejemplo de Ivorel</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecentMenu</name>
    <message>
        <source>Not found: %1</source>
        <translation>No se encuentra: %1</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (no se encuentra)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecentlyDeletedDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <translation>Eliminado recientemente</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was deleted from this project in the last %n day(s).</source>
        <translation>
            <numerusform>En el último día (%n) no se eliminó nada de este proyecto.</numerusform>
            <numerusform>En los últimos %n días no se eliminó nada de este proyecto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What was deleted in the last %n day(s) and is not there again. What lies below a document comes back with it.</source>
        <translation>
            <numerusform>Lo que se eliminó en el último día (%n) y no ha vuelto. Lo que está debajo de un documento vuelve con él.</numerusform>
            <numerusform>Lo que se eliminó en los últimos %n días y no ha vuelto. Lo que está debajo de un documento vuelve con él.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recently deleted</source>
        <translation>Eliminado recientemente</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Text of what was deleted</source>
        <translation>Texto de lo eliminado</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecoveryDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Unsaved Work</source>
        <translation>Trabajo sin guardar</translation>
    </message>
    <message>
        <source>Ivorel was cut off before this was saved. What you restore comes into the open project as one step that you can undo; lines that go are marked “−”, lines that come back “+”.</source>
        <translation>Ivorel se interrumpió antes de guardar esto. Lo que restaure entra en el proyecto abierto como un solo paso que puede deshacer; las líneas que desaparecen llevan «−» y las que vuelven, «+».</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>&amp;Descartar todo</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>Decidir &amp;más tarde</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Trabajo sin guardar</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>eliminado</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuevo</translation>
    </message>
    <message>
        <source>merged</source>
        <translation>fusionado</translation>
    </message>
    <message>
        <source>beside the newer one</source>
        <translation>junto al más reciente</translation>
    </message>
    <message>
        <source>the project’s is newer</source>
        <translation>el del proyecto es más reciente</translation>
    </message>
    <message>
        <source>It was changed since in other places. Both are kept in it.</source>
        <translation>Desde entonces cambió en otros lugares. Se conservan ambos cambios.</translation>
    </message>
    <message>
        <source>It was changed since in the same places. The unsaved work comes back beside it, as “%1 (unsaved work)”.</source>
        <translation>Desde entonces cambió en los mismos lugares. El trabajo sin guardar vuelve a su lado, como «%1 (trabajo sin guardar)».</translation>
    </message>
    <message>
        <source>It was changed since. Restoring puts the unsaved work in place of that.</source>
        <translation>Cambió desde entonces. Al recuperar, el trabajo sin guardar ocupa su lugar.</translation>
    </message>
    <message>
        <source>It was deleted before the program was cut off, and changed since. Restoring deletes it.</source>
        <translation>Se eliminó antes del cierre inesperado y cambió después. Al recuperar se elimina.</translation>
    </message>
    <message>
        <source>It was deleted. Restoring deletes it again.</source>
        <translation>Se había eliminado. Al recuperar se elimina de nuevo.</translation>
    </message>
    <message>
        <source>It is not in the project.</source>
        <translation>No está en el proyecto.</translation>
    </message>
    <message>
        <source>Nobody changed it since.</source>
        <translation>Nadie lo cambió desde entonces.</translation>
    </message>
    <message numerus="yes">
        <source>It can be brought back for %n day(s) by File › Unsaved Work….</source>
        <translation>
            <numerusform>Se puede recuperar durante %n día con Archivo › Trabajo sin guardar….</numerusform>
            <numerusform>Se puede recuperar durante %n días con Archivo › Trabajo sin guardar….</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::ReferenceFieldEditor</name>
    <message>
        <source>Go to what is named here</source>
        <translation>Ir a lo que se nombra aquí</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RestoreDocumentDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Restore This Document</source>
        <translation>Restaurar este documento</translation>
    </message>
    <message>
        <source>Choose a document. Restoring it is one step that you can undo; what goes is marked “−”, what comes back “+”.</source>
        <translation>Elija un documento. Restaurarlo es un solo paso que puede deshacer; lo que desaparece lleva «−» y lo que vuelve, «+».</translation>
    </message>
    <message>
        <source>Documents in the backup</source>
        <translation>Documentos de la copia</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>cambiado desde entonces</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>ya no está</translation>
    </message>
    <message>
        <source>There are no documents in this backup.</source>
        <translation>No hay documentos en esta copia.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::SafeKeeping</name>
    <message>
        <source>External Changes</source>
        <translation>Cambios externos</translation>
    </message>
    <message>
        <source>The project is not saved yet: there is nothing on disk to compare it with.</source>
        <translation>El proyecto aún no se ha guardado: no hay nada en el disco con que compararlo.</translation>
    </message>
    <message>
        <source>&amp;Compare…</source>
        <translation>&amp;Comparar…</translation>
    </message>
    <message>
        <source>&amp;Keep My Version</source>
        <translation>&amp;Conservar mi versión</translation>
    </message>
    <message>
        <source>&amp;Load On-Disk Version</source>
        <translation>Ca&amp;rgar la versión del disco</translation>
    </message>
    <message>
        <source>&amp;Merge and Reload</source>
        <translation>&amp;Fusionar y volver a cargar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>&amp;Check Again</source>
        <translation>&amp;Comprobar otra vez</translation>
    </message>
    <message>
        <source>&amp;Reload Media</source>
        <translation>&amp;Volver a cargar los medios</translation>
    </message>
    <message>
        <source>More than half of the project is gone from the disk.</source>
        <translation>Más de la mitad del proyecto ha desaparecido del disco.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) would be removed here as well. The project is backed up first.</source>
        <translation>
            <numerusform>%n archivo se eliminaría también aquí. Antes se hace una copia de seguridad del proyecto.</numerusform>
            <numerusform>%n archivos se eliminarían también aquí. Antes se hace una copia de seguridad del proyecto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>&amp;Compare and Merge…</source>
        <translation>&amp;Comparar y fusionar…</translation>
    </message>
    <message>
        <source>“%1” is open to be read only. What you change here is saved nowhere until you save it under another name.</source>
        <translation>«%1» está abierto solo para leer. Lo que cambie aquí no se guarda en ningún sitio hasta que lo guarde con otro nombre.</translation>
    </message>
    <message>
        <source>“%1” is missing in the folder of this project: its calendar, plot threads, goals, pins and saved searches stand as in a new one. A backup may still have them.</source>
        <translation>Falta «%1» en la carpeta de este proyecto: su calendario, tramas, metas, fijados y búsquedas guardadas están como en uno nuevo. Puede que una copia de seguridad aún los tenga.</translation>
    </message>
    <message>
        <source>Show &amp;Backups…</source>
        <translation>Mostrar copias de &amp;seguridad…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ShortcutsPage</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>AI</source>
        <translation>IA</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>In panels</source>
        <translation>En los paneles</translation>
    </message>
    <message>
        <source>&amp;No Shortcut</source>
        <translation>Si&amp;n atajo</translation>
    </message>
    <message>
        <source>&amp;Built-in Shortcut</source>
        <translation>A&amp;tajo original</translation>
    </message>
    <message>
        <source>&amp;Use It Here</source>
        <translation>&amp;Usarlo aquí</translation>
    </message>
    <message>
        <source>Find an action or keys</source>
        <translation>Buscar una acción o unas teclas</translation>
    </message>
    <message>
        <source>Actions and their shortcuts</source>
        <translation>Acciones y sus atajos</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation>Atajo nuevo</translation>
    </message>
    <message>
        <source>Select an action to change its shortcut.</source>
        <translation>Seleccione una acción para cambiar su atajo.</translation>
    </message>
    <message>
        <source>Press the new shortcut for “%1”:</source>
        <translation>Pulse el atajo nuevo para «%1»:</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” now.</source>
        <translation>«%1» pertenece ahora a «%2».</translation>
    </message>
    <message>
        <source>“%1” writes, moves or copies in texts and cannot be a shortcut.</source>
        <translation>«%1» escribe, se mueve o copia en los textos y no puede ser un atajo.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::StartUp</name>
    <message>
        <source>Settings are not kept: %1 cannot be written to. What you set lasts until Ivorel is closed.</source>
        <translation>Los ajustes no se guardan: no se puede escribir en %1. Lo que cambie dura hasta que se cierre Ivorel.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read of it is in use; it is kept as %1.</source>
        <translation>El archivo de ajustes estaba dañado. Se usa lo que se pudo leer; se conserva como %1.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TargetFieldEditor</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Words written against the target</source>
        <translation>Palabras escritas frente al objetivo</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(varios)</translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation>%1 de %2 palabras</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TimedValuesEditor</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Add a value from a date on</source>
        <translation>Añadir un valor desde una fecha</translation>
    </message>
    <message>
        <source>Remove the selected values</source>
        <translation>Quitar los valores seleccionados</translation>
    </message>
    <message>
        <source>Values that hold from a date of the story on.</source>
        <translation>Valores que rigen desde una fecha de la historia.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TokensFieldEditor</name>
    <message>
        <source>Remove “%1”</source>
        <translation>Quitar «%1»</translation>
    </message>
    <message>
        <source>%1: press to remove.</source>
        <translation>%1: pulse para quitarla.</translation>
    </message>
    <message>
        <source>Add to “%1”</source>
        <translation>Añadir a «%1»</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(varios)</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ToolBarsPage</name>
    <message>
        <source>&amp;Entries of the tool bar “Main”:</source>
        <translation>&amp;Entradas de la barra «Principal»:</translation>
    </message>
    <message>
        <source>Entries of the tool bar “Main”</source>
        <translation>Entradas de la barra «Principal»</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdateCheck</name>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Could not reach the update service: %1</source>
        <translation>No se pudo contactar con el servicio de actualizaciones: %1</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>No se pudo leer la información de la actualización.</translation>
    </message>
    <message>
        <source>You're up to date — Ivorel %1 is the newest version.</source>
        <translation>Está al día: Ivorel %1 es la versión más reciente.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>The download failed: %1</source>
        <translation>La descarga falló: %1</translation>
    </message>
    <message>
        <source>The downloaded installer failed its integrity check and was discarded. Nothing was installed.</source>
        <translation>El instalador descargado no superó la comprobación de integridad y se descartó. No se instaló nada.</translation>
    </message>
    <message>
        <source>The installer could not be saved to disk.</source>
        <translation>No se pudo guardar el instalador en el disco.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>No se pudo iniciar el instalador.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdateStatus</name>
    <message>
        <source>Progress of the download</source>
        <translation>Avance de la descarga</translation>
    </message>
    <message>
        <source>Cancel the download</source>
        <translation>Cancelar la descarga</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Downloading Ivorel %1…</source>
        <translation>Descargando Ivorel %1…</translation>
    </message>
    <message>
        <source>Update available: %1 — Install…</source>
        <translation>Actualización disponible: %1 — Instalar…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdatesPage</name>
    <message>
        <source>New versions</source>
        <translation>Versiones nuevas</translation>
    </message>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Buscar una versión nueva una vez al día</translation>
    </message>
    <message>
        <source>Last looked for on %1.</source>
        <translation>Se buscó por última vez el %1.</translation>
    </message>
    <message>
        <source>Not looked for automatically yet.</source>
        <translation>Aún no se ha buscado automáticamente.</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>&amp;Comprobar ahora</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UrlFieldEditor</name>
    <message>
        <source>Open the address in the browser</source>
        <translation>Abrir la dirección en el navegador</translation>
    </message>
</context>
<context>
    <name>vl::desktop::WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>Projects that you open stand here the next time.</source>
        <translation>Los proyectos que abra aparecerán aquí la próxima vez.</translation>
    </message>
    <message>
        <source>You find this again under Help › Welcome.</source>
        <translation>Vuelve a encontrar esto en Ayuda › Bienvenida.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Welcome to Ivorel</source>
        <translation>Bienvenida a Ivorel</translation>
    </message>
    <message>
        <source>A desk for your manuscript and the world it plays in. Everything stays on your own machine, as plain text.</source>
        <translation>Un escritorio para su manuscrito y el mundo en que transcurre. Todo queda en su propio equipo, como texto sin formato.</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Blank, or prepared for a novel, a series, a screenplay or a campaign.</source>
        <translation>En blanco, o preparado para una novela, una serie, un guion o una campaña.</translation>
    </message>
    <message>
        <source>Open a Project</source>
        <translation>Abrir un proyecto</translation>
    </message>
    <message>
        <source>A “.vellum” file.</source>
        <translation>Un archivo «.vellum».</translation>
    </message>
    <message>
        <source>Open a Project Folder</source>
        <translation>Abrir una carpeta de proyecto</translation>
    </message>
    <message>
        <source>A folder of text files.</source>
        <translation>Una carpeta de archivos de texto.</translation>
    </message>
    <message>
        <source>Look at the Sample</source>
        <translation>Ver el ejemplo</translation>
    </message>
    <message>
        <source>A small world to try everything on; you work on a copy of your own.</source>
        <translation>Un pequeño mundo para probarlo todo; usted trabaja con una copia propia.</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>No está instalado.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>A manuscript that you wrote elsewhere.</source>
        <translation>Un manuscrito que escribió en otro sitio.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>No se encuentra: %1</translation>
    </message>
</context>
<context>
    <name>vl::desktop::WindowMenus</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;AI</source>
        <translation>&amp;IA</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Pro&amp;yectos recientes</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Interface &amp;Language</source>
        <translation>&amp;Idioma de la interfaz</translation>
    </message>
    <message>
        <source>Appl&amp;y Perspective</source>
        <translation>Apli&amp;car perspectiva</translation>
    </message>
</context>
</TS>
