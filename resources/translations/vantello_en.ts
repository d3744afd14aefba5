<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="en_US" sourcelanguage="it_IT">
    <context>
        <name>Vantello</name>
        <message>
            <source>Abbigliamento</source>
            <translation>Clothing</translation>
        </message>
        <message>
            <source>Abbonamenti</source>
            <translation>Subscriptions</translation>
        </message>
        <message>
            <source>Altre entrate</source>
            <translation>Other income</translation>
        </message>
        <message>
            <source>Altre uscite</source>
            <translation>Other expenses</translation>
        </message>
        <message>
            <source>Anno-mese-giorno</source>
            <translation>Year-month-day</translation>
        </message>
        <message>
            <source>Benvenuto in Vantello</source>
            <translation>Welcome to Vantello</translation>
        </message>
        <message>
            <source>Bollette</source>
            <translation>Bills</translation>
        </message>
        <message>
            <source>C'è già una persona con questo nome.</source>
            <translation>There is already a person with this name.</translation>
        </message>
        <message>
            <source>Cambio non disponibile: la BCE pubblica gli ultimi 90 giorni e serve internet. Scrivilo a mano.</source>
            <translation>Exchange rate not available: the ECB publishes the last 90 days and an internet connection is needed. Type it by hand.</translation>
        </message>
        <message>
            <source>Casa</source>
            <translation>Home</translation>
        </message>
        <message>
            <source>Categoria</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Conto principale</source>
            <translation>Main account</translation>
        </message>
        <message>
            <source>Data</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Data non leggibile: «{text}»</source>
            <translation>Unreadable date: “{text}”</translation>
        </message>
        <message>
            <source>Data non valida: {text}</source>
            <translation>Invalid date: {text}</translation>
        </message>
        <message>
            <source>Dati non validi: era atteso un oggetto JSON.</source>
            <translation>Invalid data: a JSON object was expected.</translation>
        </message>
        <message>
            <source>Dati non validi: la chiave «{key}» {problem}.</source>
            <translation>Invalid data: the key “{key}” {problem}.</translation>
        </message>
        <message>
            <source>Due colonne: entrate e uscite</source>
            <translation>Two columns: income and expenses</translation>
        </message>
        <message>
            <source>Entrata</source>
            <translation>Income</translation>
        </message>
        <message>
            <source>Esiste già un conto con questo nome.</source>
            <translation>An account with this name already exists.</translation>
        </message>
        <message>
            <source>Esiste già una categoria con questo nome.</source>
            <translation>A category with this name already exists.</translation>
        </message>
        <message>
            <source>Frequenza sconosciuta: {text}</source>
            <translation>Unknown frequency: {text}</translation>
        </message>
        <message>
            <source>Giorno/mese/anno</source>
            <translation>Day/month/year</translation>
        </message>
        <message>
            <source>Giroconto</source>
            <translation>Transfer</translation>
        </message>
        <message>
            <source>Gli hai restituito</source>
            <translation>You paid back</translation>
        </message>
        <message>
            <source>Gli ho restituito</source>
            <translation>I paid back</translation>
        </message>
        <message>
            <source>Ha pagato per me</source>
            <translation>Paid for me</translation>
        </message>
        <message>
            <source>Ha pagato per te</source>
            <translation>Paid for you</translation>
        </message>
        <message>
            <source>I tuoi dati restano su questo computer.</source>
            <translation>Your data stays on this computer.</translation>
        </message>
        <message>
            <source>Identificativo non valido: {text}</source>
            <translation>Invalid identifier: {text}</translation>
        </message>
        <message>
            <source>Il budget si imposta solo sulle categorie di uscita.</source>
            <translation>Budgets can only be set on expense categories.</translation>
        </message>
        <message>
            <source>Il conto non esiste.</source>
            <translation>The account does not exist.</translation>
        </message>
        <message>
            <source>Il conto principale non si può eliminare.</source>
            <translation>The main account cannot be deleted.</translation>
        </message>
        <message>
            <source>Il file dei cambi non contiene nessun cambio della BCE.</source>
            <translation>The exchange-rate file contains no ECB rates.</translation>
        </message>
        <message>
            <source>Il file dei movimenti viene da una versione più recente di Vantello (formato {n}).</source>
            <translation>The movements file comes from a newer version of Vantello (format {n}).</translation>
        </message>
        <message>
            <source>Il file non è un JSON valido (riga {line}, colonna {column}).</source>
            <translation>The file is not valid JSON (line {line}, column {column}).</translation>
        </message>
        <message>
            <source>Il file non è un JSON valido.</source>
            <translation>The file is not valid JSON.</translation>
        </message>
        <message>
            <source>Il movimento non esiste più.</source>
            <translation>The movement no longer exists.</translation>
        </message>
        <message>
            <source>Il nome del conto è troppo lungo (massimo 40 caratteri).</source>
            <translation>The account name is too long (40 characters at most).</translation>
        </message>
        <message>
            <source>Il nome della categoria è troppo lungo (massimo 40 caratteri).</source>
            <translation>The category name is too long (40 characters at most).</translation>
        </message>
        <message>
            <source>Il server dei cambi della BCE non ha risposto in tempo.</source>
            <translation>The ECB exchange-rate server did not answer in time.</translation>
        </message>
        <message>
            <source>Il server dei cambi ha risposto con l'errore HTTP {status}.</source>
            <translation>The exchange-rate server answered with HTTP error {status}.</translation>
        </message>
        <message>
            <source>Importo</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Importo assente o uguale a zero.</source>
            <translation>Amount missing or zero.</translation>
        </message>
        <message>
            <source>Importo non leggibile: «{text}»</source>
            <translation>Unreadable amount: “{text}”</translation>
        </message>
        <message>
            <source>Importo non valido: {text}</source>
            <translation>Invalid amount: {text}</translation>
        </message>
        <message>
            <source>Indennità di disoccupazione</source>
            <translation>Unemployment benefit</translation>
        </message>
        <message>
            <source>L'importo deve essere maggiore di zero.</source>
            <translation>The amount must be greater than zero.</translation>
        </message>
        <message>
            <source>La categoria non corrisponde al tipo di movimento.</source>
            <translation>The category does not match the kind of movement.</translation>
        </message>
        <message>
            <source>La categoria «{id}» non esiste.</source>
            <translation>The category “{id}” does not exist.</translation>
        </message>
        <message>
            <source>La fine della ricorrenza deve venire dopo l'inizio.</source>
            <translation>The end of the recurrence must come after its start.</translation>
        </message>
        <message>
            <source>La persona non esiste più.</source>
            <translation>The person no longer exists.</translation>
        </message>
        <message>
            <source>Le categorie predefinite non si possono modificare.</source>
            <translation>Built-in categories cannot be changed.</translation>
        </message>
        <message>
            <source>Le quote degli altri non possono superare la spesa.</source>
            <translation>The others' shares cannot exceed the expense.</translation>
        </message>
        <message>
            <source>Mese/giorno/anno</source>
            <translation>Month/day/year</translation>
        </message>
        <message>
            <source>Mi ha restituito</source>
            <translation>Paid me back</translation>
        </message>
        <message>
            <source>Non riesco a leggere «{file}»: {reason}.</source>
            <translation>I cannot read “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non riesco a leggere «{file}»…</source>
            <translation>I cannot read “{file}”…</translation>
        </message>
        <message>
            <source>Non riesco a scrivere «{file}»: {reason}.</source>
            <translation>I cannot write “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non riesco a spostare «{file}»: {reason}.</source>
            <translation>I cannot move “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Non trovo la cartella dei dati.</source>
            <translation>I cannot find the data folder.</translation>
        </message>
        <message>
            <source>Non è stato possibile scaricare i cambi della BCE.</source>
            <translation>The ECB exchange rates could not be downloaded.</translation>
        </message>
        <message>
            <source>Nota</source>
            <translation>Note</translation>
        </message>
        <message>
            <source>Periodo di ricerca sconosciuto: {text}</source>
            <translation>Unknown search period: {text}</translation>
        </message>
        <message>
            <source>Questo movimento esiste già.</source>
            <translation>This movement already exists.</translation>
        </message>
        <message>
            <source>Ristoranti e bar</source>
            <translation>Restaurants and bars</translation>
        </message>
        <message>
            <source>Salute</source>
            <translation>Health</translation>
        </message>
        <message>
            <source>Scegli il conto di destinazione del giroconto.</source>
            <translation>Choose the destination account of the transfer.</translation>
        </message>
        <message>
            <source>Scegli la colonna dell'importo.</source>
            <translation>Choose the amount column.</translation>
        </message>
        <message>
            <source>Scegli la colonna della data.</source>
            <translation>Choose the date column.</translation>
        </message>
        <message>
            <source>Scegli le colonne di entrate e uscite.</source>
            <translation>Choose the income and expense columns.</translation>
        </message>
        <message>
            <source>Scrivi il testo da cercare nella descrizione.</source>
            <translation>Write the text to look for in the description.</translation>
        </message>
        <message>
            <source>Scrivi un nome per il conto.</source>
            <translation>Write a name for the account.</translation>
        </message>
        <message>
            <source>Scrivi un nome per la categoria.</source>
            <translation>Write a name for the category.</translation>
        </message>
        <message>
            <source>Scrivi un nome.</source>
            <translation>Write a name.</translation>
        </message>
        <message>
            <source>Si possono dividere solo le uscite.</source>
            <translation>Only expenses can be shared.</translation>
        </message>
        <message>
            <source>Spesa alimentare</source>
            <translation>Groceries</translation>
        </message>
        <message>
            <source>Stipendio</source>
            <translation>Salary</translation>
        </message>
        <message>
            <source>Svago</source>
            <translation>Leisure</translation>
        </message>
        <message>
            <source>Ti ha restituito</source>
            <translation>Paid you back</translation>
        </message>
        <message>
            <source>Tipo</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Tipo di movimento sconosciuto: {text}</source>
            <translation>Unknown kind of movement: {text}</translation>
        </message>
        <message>
            <source>Tipo di voce condivisa sconosciuto: {text}</source>
            <translation>Unknown kind of shared entry: {text}</translation>
        </message>
        <message>
            <source>Trasporti</source>
            <translation>Transport</translation>
        </message>
        <message>
            <source>Un altro programma sta modificando questi dati. Chiudilo e riprova.</source>
            <translation>Another program is changing this data. Close it and try again.</translation>
        </message>
        <message>
            <source>Un giroconto va tra due conti diversi.</source>
            <translation>A transfer goes between two different accounts.</translation>
        </message>
        <message>
            <source>Una colonna, con il meno per le uscite</source>
            <translation>One column, with a minus for expenses</translation>
        </message>
        <message>
            <source>Uscita</source>
            <translation>Expense</translation>
        </message>
        <message>
            <source>ha un valore del tipo sbagliato</source>
            <translation>has a value of the wrong type</translation>
        </message>
        <message>
            <source>manca</source>
            <translation>is missing</translation>
        </message>
        <message>
            <source>«{file}» non contiene righe da importare.</source>
            <translation>“{file}” contains no rows to import.</translation>
        </message>
        <message>
            <source>Movimenti</source>
            <translation>Movements</translation>
        </message>
        <message>
            <source>Categorie personalizzate</source>
            <translation>Custom categories</translation>
        </message>
        <message>
            <source>Budget</source>
            <translation>Budgets</translation>
        </message>
        <message>
            <source>Conti</source>
            <translation>Accounts</translation>
        </message>
        <message>
            <source>Movimenti ricorrenti</source>
            <translation>Recurring movements</translation>
        </message>
        <message>
            <source>Regole di categoria</source>
            <translation>Category rules</translation>
        </message>
        <message>
            <source>Periodi senza lavoro</source>
            <translation>Periods without work</translation>
        </message>
        <message>
            <source>Ricerche salvate</source>
            <translation>Saved searches</translation>
        </message>
        <message>
            <source>Obiettivi di risparmio</source>
            <translation>Savings goals</translation>
        </message>
        <message>
            <source>Prestiti</source>
            <translation>Loans</translation>
        </message>
        <message>
            <source>Beni</source>
            <translation>Assets</translation>
        </message>
        <message>
            <source>Abbonamenti ignorati</source>
            <translation>Ignored subscriptions</translation>
        </message>
        <message>
            <source>Avvisi nascosti</source>
            <translation>Dismissed alerts</translation>
        </message>
        <message>
            <source>Persone</source>
            <translation>People</translation>
        </message>
        <message>
            <source>Voci condivise</source>
            <translation>Shared entries</translation>
        </message>
        <message>
            <source>Non ci sono ancora mesi precedenti: la spesa variabile è stimata dai giorni già passati di questo mese, moltiplicata per i giorni che restano ({giorni}).</source>
            <translation>There are no earlier months yet: variable spending is estimated from the days of this month so far, multiplied by the days remaining ({giorni}).</translation>
        </message>
        <message>
            <source>Spesa variabile stimata: la media giornaliera dei mesi precedenti ({mesi}), esclusi i movimenti ricorrenti, moltiplicata per i giorni che restano ({giorni}).</source>
            <translation>Estimated variable spending: the daily average of the previous months ({mesi}), excluding recurring movements, multiplied by the days remaining ({giorni}).</translation>
        </message>
        <message>
            <source>Possibile addebito doppio</source>
            <translation>Possible double charge</translation>
        </message>
        <message>
            <source>«{nota}» da {importo} compare due volte, il {data1} e il {data2}.</source>
            <translation>“{nota}” for {importo} appears twice, on {data1} and on {data2}.</translation>
        </message>
        <message>
            <source>Saldo basso: {conto}</source>
            <translation>Low balance: {conto}</translation>
        </message>
        <message>
            <source>Il saldo è {saldo}, sotto la soglia di {soglia} che hai scelto.</source>
            <translation>The balance is {saldo}, below the threshold of {soglia} you chose.</translation>
        </message>
        <message>
            <source>Previsione di fine mese negativa</source>
            <translation>Negative end-of-month forecast</translation>
        </message>
        <message>
            <source>Al ritmo attuale il mese chiude a {saldo}.</source>
            <translation>At the current pace the month closes at {saldo}.</translation>
        </message>
        <message>
            <source>Scrivi un nome per la ricerca.</source>
            <translation>Enter a name for the search.</translation>
        </message>
        <message>
            <source>Tipo di avviso sconosciuto: {text}</source>
            <translation>Unknown alert kind: {text}</translation>
        </message>
        <message>
            <source>Spesa insolita: {categoria}</source>
            <translation>Unusual spending: {categoria}</translation>
        </message>
        <message>
            <source>Questo mese hai già speso {speso} in {categoria}, il {percentuale} in più della tua media mensile ({media}).</source>
            <translation>This month you have already spent {speso} on {categoria}, {percentuale} more than your monthly average ({media}).</translation>
        </message>
        <message>
            <source>«{file}» non è un file normale.</source>
            <translation>“{file}” is not a regular file.</translation>
        </message>
        <message>
            <source>permesso negato</source>
            <translation>permission denied</translation>
        </message>
        <message>
            <source>file o cartella inesistente</source>
            <translation>no such file or folder</translation>
        </message>
        <message>
            <source>è una cartella</source>
            <translation>it is a folder</translation>
        </message>
        <message>
            <source>una parte del percorso non è una cartella</source>
            <translation>part of the path is not a folder</translation>
        </message>
        <message>
            <source>disco pieno</source>
            <translation>the disk is full</translation>
        </message>
        <message>
            <source>file system di sola lettura</source>
            <translation>read-only file system</translation>
        </message>
        <message>
            <source>esiste già</source>
            <translation>it already exists</translation>
        </message>
        <message>
            <source>nome troppo lungo</source>
            <translation>the name is too long</translation>
        </message>
        <message>
            <source>troppi file aperti</source>
            <translation>too many open files</translation>
        </message>
        <message>
            <source>Dati non validi: l'identificativo {id} compare più volte in «{key}».</source>
            <translation>Invalid data: the identifier {id} appears more than once in “{key}”.</translation>
        </message>
        <message>
            <source>«{name}» non è un file: le cartelle e i pacchetti non si possono allegare.</source>
            <translation>“{name}” is not a file: folders and packages cannot be attached.</translation>
        </message>
        <message>
            <source>«{name}» supera i {limit} MB.</source>
            <translation>“{name}” is larger than {limit} MB.</translation>
        </message>
        <message>
            <source>Questo backup non esiste più.</source>
            <translation>This backup no longer exists.</translation>
        </message>
        <message>
            <source>Questo backup è di un'altra gestione.</source>
            <translation>This backup belongs to another managed profile.</translation>
        </message>
        <message>
            <source>Non riesco a eliminare «{file}»: {reason}.</source>
            <translation>Cannot delete “{file}”: {reason}.</translation>
        </message>
        <message>
            <source>Famiglia {cognome}</source>
            <translation>{cognome} family</translation>
        </message>
        <message>
            <source>Tipo di gestione sconosciuto: {text}</source>
            <translation>Unknown profile kind: {text}</translation>
        </message>
        <message>
            <source>Scrivi il nome della persona.</source>
            <translation>Enter the person's first name.</translation>
        </message>
        <message>
            <source>Scrivi il cognome.</source>
            <translation>Enter the surname.</translation>
        </message>
        <message>
            <source>Nome e cognome possono avere al massimo 60 caratteri ciascuno.</source>
            <translation>First name and surname can have at most 60 characters each.</translation>
        </message>
        <message>
            <source>Esiste già una gestione con questo nome.</source>
            <translation>A managed profile with this name already exists.</translation>
        </message>
        <message>
            <source>Questa gestione non esiste più.</source>
            <translation>This managed profile no longer exists.</translation>
        </message>
        <message>
            <source>L'allegato non esiste più.</source>
            <translation>The attachment no longer exists.</translation>
        </message>
        <message>
            <source>Non riesco a salvare i movimenti: {reason}</source>
            <translation>Cannot save the transactions: {reason}</translation>
        </message>
        <message>
            <source>Il file non è XML valido dalla riga {line} ({reason}): il resto non viene letto.</source>
            <translation>The file is not valid XML from line {line} ({reason}): the rest is not read.</translation>
        </message>
        <message>
            <source>Non si sa se è un'entrata o un'uscita (CdtDbtInd «{text}»).</source>
            <translation>Not known whether it is income or an expense (CdtDbtInd «{text}»).</translation>
        </message>
        <message>
            <source>Movimento non ancora contabilizzato (stato «{status}»): non viene importato.</source>
            <translation>Transaction not booked yet (status «{status}»): it is not imported.</translation>
        </message>
        <message>
            <source>Importo in {currency}, non in euro: il movimento non viene importato.</source>
            <translation>Amount in {currency}, not in euro: the transaction is not imported.</translation>
        </message>
        <message>
            <source>Movimento non contabilizzato: «{text}»</source>
            <translation>Transaction not booked: «{text}»</translation>
        </message>
        <message>
            <source>Riga di saldo, non un movimento: «{text}»</source>
            <translation>Balance line, not a transaction: «{text}»</translation>
        </message>
        <message>
            <source>Scrivi un nome per l'obiettivo.</source>
            <translation>Enter a name for the goal.</translation>
        </message>
        <message>
            <source>La cifra da raggiungere deve essere maggiore di zero.</source>
            <translation>The amount to reach must be greater than zero.</translation>
        </message>
        <message>
            <source>Il versamento non può essere zero.</source>
            <translation>The deposit cannot be zero.</translation>
        </message>
        <message>
            <source>Non puoi ritirare più di quanto hai messo da parte.</source>
            <translation>You cannot withdraw more than you have saved.</translation>
        </message>
        <message>
            <source>L'obiettivo non esiste più.</source>
            <translation>The goal no longer exists.</translation>
        </message>
    </context>
</TS>