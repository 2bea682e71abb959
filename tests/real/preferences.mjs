// What a host and its user do with the Meetings pane until an Office 365 account is applied.
import { clientId } from './providers.mjs';

const resource = 'https://mail.example.com';

function parameters(authority, redirectUri, email) {
  return JSON.stringify({ authority, resource, clientId, redirectUri, email });
}

// Notification 26 or 25, which ask for a sign-in.
export function signInRequest(authority, { redirectUri = 'http://127.0.0.1/done', email, notification = 26 }) {
  const login = parameters(authority, redirectUri, email);
  const content =
    notification === 26
      ? { kKZResult: 'kKZSuccess', QRT_ExchangeDiscover_O365LoginParams: login }
      : { O365LoginData: JSON.stringify({ O365LoginParams: login }) };
  return { notify: notification, content };
}

export async function openMeetings(session) {
  await session.play(
    { notify: 7, content: { kKZResult: 'kKZSuccess', kz: {} } },
    { command: 2 },
    { pane: 'Meetings' },
    { wait: 400 },
    { click: 'm_outlookRadioBtn' },
  );
}

// Returns the address that the browser is to open.
export async function applyAccount(session, authority, options) {
  const from = session.printed.length;
  await session.play(
    { type: 'm_emailInputTxt', text: options.email },
    { click: 'm_detectBtn' },
    signInRequest(authority, options),
  );
  return (await session.waitFor('the sign-in page is opened', (line) => line.opened, from)).opened;
}

export function tokenRequest(email) {
  const account = { kKZCalendarIntegrationExchangeEmail: email };
  return { command: 28, content: { kKZCalendarIntegration: { kKZCalendarIntegrationExchange: account } } };
}

// Notification 15: the mailbox could be opened with the token.
export function resolved(email) {
  const account = {
    kKZCalendarIntegrationExchangeEmail: email,
    kKZCalendarIntegrationExchangeUsername: email,
    kKZCalendarIntegrationExchangeExternalUrl: `${resource}/ews`,
    kKZCalendarIntegrationIsOnline: true,
  };
  return { notify: 15, content: { kKZResult: 'kKZSuccess', QRT_ExchangeDiscover_Exchange: account } };
}
